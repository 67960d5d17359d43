#include "code_table.h"
#include "command_list.h"
#include "command_log.h"
#include "command_parser.h"
#include "streams.h"

#include <gtest/gtest.h>

#include <sstream>

using namespace virtual_printer;
using q7test::hex;

namespace
{

const std::string many(300, 'A');

const StreamRow streams[] = {
    {"TextAndArguments",
     "'Ol' E1 ' \"x\"' 0A 1B 57 00 00 0A 00 E1 00 00 01 1D 6B 49 05 '{C' 04 0C 00 1D 6B 04 'A1' 00 "
     "'x'",
     {R"("Olá \"x\"")", "LF", "ESC W 0 0 10 0 225 0 0 1", "GS k 73 5", "GS k 4", R"("x")"}},
    // What follows a bad command is read as if the command had not been there.
    {"Unknown",
     "1B 7A 'a' 1B 07 'b' 1D 0A 01",
     {"unknown", R"("a")", "unknown", "unknown", R"("b")", "unknown", "LF", "unknown"}},
    {"OutOfRange",
     "1D 6B 63 'a' 1D 56 09 'b' 1D 6B 49 00 'c'",
     {"malformed GS k", R"("a")", "malformed GS V", R"("b")", "malformed GS k", R"("c")"}},
    {"HugeLengths",
     "1D 28 6B FF FF 31 50 30 'a' 1D 76 30 00 FF FF FF FF 'b' 1D 38 4C FF FF FF FF 'c'"
     "1D 6B 51 00 06 0E 01 FF FF 'd'",
     {"malformed GS ( k", R"("a")", "malformed GS v 0", R"("b")", "malformed GS 8", R"("c")",
      "malformed GS k", R"("d")"}},
    {"NeverEnded", "1D 6B 04 '" + many + "'", {"malformed GS k", '"' + many + '"'}},
    {"CutOffInTheHead", "'a' 1D 28 4C 06", {R"("a")", "truncated GS ( L"}},
    {"CutOffInTheData",
     "1D 28 6B 20 00 31 50 30 'abc' 0A 1B 61",
     {"truncated GS ( k", R"("abc")", "LF", "truncated ESC a"}},
};

} // namespace

TEST(Parser, FindsEveryCommand)
{
    for (const auto& [name, stream, gives] : streams) {
        Lines names;
        for (const Command& command : parseAll(hex(stream))) {
            names.push_back(nameWithArguments(command));
        }
        EXPECT_EQ(names, gives) << name;
    }
}

TEST(Parser, ListsOffsetBytesNameAndData)
{
    const std::vector<Command> commands =
        parseAll(hex("'ab' 1B 61 01 1D 28 6B 05 00 31 50 30 'ab'"));
    EXPECT_EQ(listLine(commands[1]), "       2  1B 61 01" + std::string(26, ' ') + "ESC a 1" +
                                         std::string(19, ' ') + "alignment");
    EXPECT_EQ(listLine(commands[2]), "       5  1D 28 6B 05 00 31 50 30" + std::string(11, ' ') +
                                         "GS ( k" + std::string(20, ' ') + "QR data \"ab\"");
}

TEST(Parser, FindsTheSameCommandsHoweverTheStreamIsCut)
{
    for (unsigned seed = 1; seed <= 20; ++seed) {
        SCOPED_TRACE(seed);
        const std::string stream = hostileStream(seed, 3000, "");
        const std::vector<Command> whole = parseAll(stream);
        std::size_t count = 0;
        std::string joined;
        CommandParser parser([&](const Command& command) {
            ASSERT_LT(count, whole.size());
            ASSERT_EQ(listLine(command), listLine(whole[count++]));
            ASSERT_EQ(command.offset, joined.size());
            joined += command.bytes;
        });
        for (std::size_t at = 0; at < stream.size(); at += seed) {
            parser.feed(std::string_view(stream).substr(at, seed));
        }
        parser.finish();
        EXPECT_EQ(joined, stream) << "no byte is lost, none comes twice";
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
    const std::string sent = "[01.02.2026-09:05:07.004].....[COMANDOSENVIADOS].....[";
    const std::string called = "[01.02.2026-09:05:07.004].....[FUNCAO]...............[";
    const std::string opened = called + "AbreConexaoImpressora. PARAMETROS:";
    std::istringstream log(opened + "3,VOLTA,192.168.0.10,9100]\n" + sent + "1B40]\n" + called +
                           "ImpressaoTexto. PARAMETROS:a\n1B40],0,0,0]\n" + sent + "61e7]\r\n" +
                           sent + "0AZZ]\n" + opened + "2,SORBE,COM3,9600]\n" +
                           "COMANDOSENVIADOS].....[00]\n[COMANDOSENVIADOS].....[1D5600]\n" + sent +
                           std::string(20'000, '0') + "5");
    Lines told;
    readCommandLog(
        log,
        {[&](const std::string& model) { told.push_back("opened " + model); },
         [&](std::string_view piece) {
             told.push_back(piece.size() < 9 ? quoted(piece) : std::to_string(piece.size()));
         },
         [&](std::uint64_t line) { told.push_back("fault in line " + std::to_string(line)); }});
    EXPECT_EQ(told, (Lines{"opened VOLTA", R"("\x1B@")", R"("aç")", R"("\x0A")", "fault in line 6",
                           "opened SORBE", R"("\x1DV\x00")", "4096", "4096", "1808",
                           "fault in line 10"}));
}
