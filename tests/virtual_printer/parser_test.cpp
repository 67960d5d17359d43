#include "bytes.h"
#include "command_list.h"
#include "command_log.h"
#include "command_parser.h"

#include <gtest/gtest.h>

#include <random>
#include <sstream>

using namespace virtual_printer;

namespace
{

std::vector<std::string> namesOf(const std::string& stream)
{
    std::vector<std::string> names;
    for (const Command& command : parseAll(stream)) {
        names.push_back(nameWithArguments(command));
    }
    return names;
}

struct Stream {
    const char* name;
    std::string bytes;
    std::vector<std::string> commands;
};
void PrintTo(const Stream& row, std::ostream* out)
{
    *out << row.name;
}

class Parsing : public testing::TestWithParam<Stream>
{
};

} // namespace

TEST_P(Parsing, FindsEveryCommand)
{
    EXPECT_EQ(namesOf(GetParam().bytes), GetParam().commands);
}

INSTANTIATE_TEST_SUITE_P(
    Streams, Parsing,
    testing::Values(
        Stream{"TextAndControls",
               bytes("1B 40 'Ol' E1 ' \"x\"' 0A 0D"),
               {"ESC @", R"("Olá \"x\"")", "LF", "CR"}},
        Stream{"StatusQueries",
               bytes("1D 61 00 10 04 01 10 04 14 1D 49 43"),
               {"GS a 0", "DLE EOT 1", "DLE EOT 20", "GS I 67"}},
        Stream{"PageMode",
               bytes("1B 4C 1B 57 00 00 0A 00 E1 00 00 01 18 1B 54 00 1B 24 23 00 1D 24 32 00"
                     "1B 0C 0C 1B 53"),
               {"ESC L", "ESC W 0 0 10 0 225 0 0 1", "CAN", "ESC T 0", "ESC $ 35 0", "GS $ 50 0",
                "ESC FF", "FF", "ESC S"}},
        Stream{"FunctionsOfGsParenthesis",
               bytes("1D 28 6B 03 00 31 43 04 1D 28 6B 05 00 31 50 30 'ab' 1D 28 6B 03 00 31 51 30"
                     "1B 28 41 05 00 61 64 03 02 01 1D 28 4C 06 00 30 45 '00' 01 02"),
               {"GS ( k 4", "GS ( k", "GS ( k", "ESC ( A 3 2 1", "GS ( L 48 48 1 2"}},
        Stream{"QrDialects",
               bytes("1D 6F 00 04 00 02 1D 6B 0B 'MA,data' 00"
                     "1D 6B 51 00 06 0E 01 06 00 'ABC' 0A"),
               {"GS o 0 4 0 2", "GS k 77 65 44", "GS k 6 14 1 6 0", "LF"}},
        Stream{"Barcodes",
               bytes("1D 6B 49 05 '{C' 04 0C 00 1D 6B 04 'A1' 00 'x'"),
               {"GS k 73 5", "GS k 4", R"("x")"}},
        Stream{"CutDrawerBuzzer",
               bytes("1D 56 00 1D 56 42 03 1B 70 30 64 64"),
               {"GS V 0", "GS V 66 3", "ESC p 48 100 100"}},
        // What follows a bad command is read as if the command had not been there.
        Stream{"Unknown",
               bytes("1B 7A 'a' 1B 07 'b' 1D 0A 01"),
               {"unknown", R"("a")", "unknown", "unknown", R"("b")", "unknown", "LF", "unknown"}},
        Stream{"OutOfRange",
               bytes("1D 6B 63 'a' 0A 1D 56 09 'b' 0A 1D 6B 49 00 'c' 0A"),
               {"malformed GS k", R"("a")", "LF", "malformed GS V", R"("b")", "LF",
                "malformed GS k", R"("c")", "LF"}},
        Stream{"HugeLengths",
               bytes("1D 28 6B FF FF 31 50 30 'a' 0A 1D 76 30 00 FF FF FF FF 'b' 0A"
                     "1D 38 4C FF FF FF FF 'c' 0A 1D 6B 51 00 06 0E 01 FF FF 'd' 0A"),
               {"malformed GS ( k", R"("a")", "LF", "malformed GS v 0", R"("b")", "LF",
                "malformed GS 8", R"("c")", "LF", "malformed GS k", R"("d")", "LF"}},
        Stream{"NeverEnded",
               bytes("1D 6B 04") + std::string(300, 'A'),
               {"malformed GS k", '"' + std::string(300, 'A') + '"'}},
        Stream{"CutOffInTheHead", bytes("'a' 1D 28 4C 06"), {R"("a")", "truncated GS ( L"}},
        Stream{"CutOffInTheData",
               bytes("1D 28 6B 20 00 31 50 30 'abc' 0A 1B 61"),
               {"truncated GS ( k", R"("abc")", "LF", "truncated ESC a"}}),
    [](const auto& row) { return row.param.name; });

TEST(Parser, ListsOffsetBytesNameAndData)
{
    const auto lineOf = [](const char* stream, std::size_t index) {
        return listLine(parseAll(bytes(stream))[index]);
    };
    const std::string gap(26, ' ');
    EXPECT_EQ(lineOf("'ab' 1B 61 01", 1),
              "       2  1B 61 01" + gap + "ESC a 1" + std::string(19, ' ') + "alignment");
    EXPECT_EQ(lineOf("1D 28 6B 05 00 31 50 30 'ab'", 0),
              "       0  1D 28 6B 05 00 31 50 30" + std::string(11, ' ') + "GS ( k" +
                  std::string(20, ' ') + "QR data \"ab\"");
}

/** Random bytes, rich in what begins a command. */
static std::string hostileStream(unsigned seed, std::size_t size)
{
    std::mt19937 random(seed);
    const std::string leads = bytes("1B 1D 10 1C 0A 28 6B 4C 00 30 31 FF 41 7E");
    std::string stream;
    while (stream.size() < size) {
        const auto value = static_cast<unsigned>(random());
        stream +=
            value % 3 == 0 ? static_cast<char>(value >> 8U) : leads[(value >> 8U) % leads.size()];
    }
    return stream;
}

TEST(Parser, FindsTheSameCommandsHoweverTheStreamIsCut)
{
    for (unsigned seed = 1; seed <= 20; ++seed) {
        const std::string stream = hostileStream(seed, 3000);
        const std::vector<Command> whole = parseAll(stream);
        std::vector<Command> pieces;
        CommandParser parser([&](const Command& command) { pieces.push_back(command); });
        for (std::size_t at = 0; at < stream.size(); at += seed) {
            parser.feed(std::string_view(stream).substr(at, seed));
        }
        parser.finish();

        std::string joined;
        ASSERT_EQ(pieces.size(), whole.size()) << "seed " << seed;
        for (std::size_t i = 0; i < whole.size(); ++i) {
            ASSERT_EQ(listLine(pieces[i]), listLine(whole[i])) << "seed " << seed;
            ASSERT_EQ(pieces[i].offset, joined.size()) << "seed " << seed;
            joined += pieces[i].bytes;
        }
        EXPECT_EQ(joined, stream) << "no byte is lost, none comes twice; seed " << seed;
    }
}

TEST(Parser, TakesTildeQueriesOnlyWhereThePrinterHasThem)
{
    std::vector<Op> ops;
    CommandParser parser([&](const Command& command) { ops.push_back(command.op); },
                         CommandParser::TildeQueries::Yes);
    parser.feed("a~");
    parser.feed("HI~");
    parser.finish();
    EXPECT_EQ(ops, (std::vector<Op>{Op::Text, Op::TildeIdentification, Op::Text}));
    EXPECT_EQ(parseAll("~HI")[0].op, Op::Text);
}

TEST(CommandLog, GivesTheBytesOfEachConnection)
{
    std::istringstream log(
        "[01.02.2026-09:05:07.004].....[INFO]................[Biblioteca carregada 01.01.00]\n"
        "[01.02.2026-09:05:07.004].....[FUNCAO]...............[AbreConexaoImpressora. "
        "PARAMETROS:3,VOLTA,192.168.0.10,9100]\n"
        "[01.02.2026-09:05:07.005].....[COMANDOSENVIADOS].....[1B40]\n"
        "[01.02.2026-09:05:07.006].....[FUNCAO]...............[ImpressaoTexto. PARAMETROS:a\n"
        "1B40],0,0,0]\n"
        "[01.02.2026-09:05:07.007].....[COMANDOSENVIADOS].....[61e7]\r\n"
        "[01.02.2026-09:05:07.007].....[COMANDOSENVIADOS].....[0AZZ]\n"
        "[01.02.2026-09:05:08.000].....[FUNCAO]...............[AbreConexaoImpressora. "
        "PARAMETROS:2,SORBE,COM3,9600]\n"
        "COMANDOSENVIADOS].....[00]\n"
        "[COMANDOSENVIADOS].....[1D5600]\n");
    std::vector<std::string> models;
    std::vector<std::string> jobs;
    std::vector<std::uint64_t> faultyLines;
    readCommandLog(log, {[&](const std::string& model) {
                             models.push_back(model);
                             jobs.emplace_back();
                         },
                         [&](std::string_view sent) { jobs.back().append(sent); },
                         [&](std::uint64_t line) { faultyLines.push_back(line); }});
    EXPECT_EQ(models, (std::vector<std::string>{"VOLTA", "SORBE"}));
    EXPECT_EQ(jobs, (std::vector<std::string>{bytes("1B 40 'a' E7 0A"), bytes("1D 56 00")}));
    EXPECT_EQ(faultyLines, std::vector<std::uint64_t>{7});
}
