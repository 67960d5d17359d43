// What each command export sends, answers and logs.

#include "export_fixture.h"

#include <array>
#include <functional>
#include <regex>

using namespace q7test;

namespace
{

using Call = std::function<int()>;

struct Row {
    Call call;
    int result;
    Transcript transcript; // its first line is the call's PARAMETROS line
    std::string model = "VANTA";
};

void PrintTo(const Row& row, std::ostream* out)
{
    *out << row.transcript.front() << " on " << row.model;
}

class Command : public ExportTest, public testing::WithParamInterface<Row>
{
};

TEST_P(Command, SendsAnswersAndLogs)
{
    const Row& row = GetParam();
    // Whatever its arguments: the link is tested first.
    EXPECT_EQ(Q7_ERR_NOT_OPEN, row.call());
    EXPECT_EQ(logOf({row.transcript.front()}), data.takeLog());

    PrinterScript script;
    script.model = row.model;
    openTcp(script);
    EXPECT_EQ(row.result, row.call());
    EXPECT_EQ(logOf(row.transcript), data.takeLog());
    EXPECT_TRUE(sameBytes(bytesOf(row.transcript), takeSent()));
}

/** A call with its arguments as they are logged; its result is logged when it sends something. */
Row row(const std::string& name, const std::string& arguments, Call call, int result,
        Transcript sends = {})
{
    if (!sends.empty())
        sends.push_back(name + ". RETORNO:" + std::to_string(result));
    sends.insert(sends.begin(), name + ". PARAMETROS:" + arguments);
    return {std::move(call), result, std::move(sends)};
}

/** A call from its source text, "Corte(3)". */
Row row(const std::string& source, Call call, int result, Transcript sends = {})
{
    std::smatch parts;
    EXPECT_TRUE(std::regex_match(source, parts, std::regex(R"((\w+)\((.*)\))")));
    const std::string arguments = std::regex_replace(parts.str(2), std::regex(", "), ",");
    return row(parts[1], arguments, std::move(call), result, std::move(sends));
}

#define CALL(call) #call, [] { return call; }

/** An ImpressaoTexto that begins with a reset. logged: its content in the log. */
Row text(const char* content, int alignment, int style, int size, int result, Transcript sends = {},
         const char* logged = nullptr)
{
    std::string arguments = logged != nullptr ? logged : content;
    for (const int number : {alignment, style, size})
        arguments += ',' + std::to_string(number);
    if (!sends.empty())
        sends.insert(sends.begin(), {"InicializaImpressora. PARAMETROS:", "> 1B 40",
                                     "InicializaImpressora. RETORNO:0"});
    return row(
        "ImpressaoTexto", arguments,
        [=] { return ImpressaoTexto(content, alignment, style, size); }, result, std::move(sends));
}

const Row textRows[] = {
    text("abc\n", 0, 0, 0, 4, {"> 1B 74", "> 10", R"(> "abc\n")"}),
    text("x", 2, 15, 119, 1,
         {"> 1B 61", "> 02", "> 1B 21 01", "> 1B 21 80", "> 1D 42 01", "> 1B 45 01", "> 1D 21",
          "> 77", "> 1B 74", "> 10", "> \"x\""}),
    // The log's lines go out as Latin-1 and are read as UTF-8; the printer gets Latin-1.
    text("ação €\n", 0, 0, 0, 7, {"> 1B 74", "> 10", R"(> "ação ?\n")"}, "a\uFFFD\uFFFDo ?\n"),
    text("\xFF\xE3o\xC3", 0, 0, 0, 4, {"> 1B 74", "> 10", "> \"??o?\""}, "??o?"),
    text("", 0, 0, 0, -44, {"> 1B 74", "> 10", ">"}),
    text(nullptr, 0, 0, 0, -44, {"> 1B 74", "> 10", ">"}, ""),
    text("x", -1, 16, 120, -41),
    text("x", 3, 0, 0, -41),
    text("x", 0, -1, 120, -42),
    text("x", 0, 16, 0, -42),
    text("x", 0, 0, -1, -43),
    text("x", 0, 0, 120, -43),
};
INSTANTIATE_TEST_SUITE_P(Text, Command, testing::ValuesIn(textRows));

const Row plainRows[] = {
    row(CALL(InicializaImpressora()), 0, {"> 1B 40"}),
    row(
        "EspaçamentoEntreLinhas", "255", [] { return EspacamentoEntreLinhas(255); }, 0),
    row(
        "EspaçamentoEntreLinhas", "0", [] { return EspacamentoEntreLinhas(0); }, -43),
    row(
        "EspaçamentoEntreLinhas", "256", [] { return EspacamentoEntreLinhas(256); }, -43),
    row(CALL(DefinePosicao(0)), 0, {"> 1B 61", "> 00"}),
    row(CALL(DefinePosicao(-1)), 0, {"> 1B 61", "> FF"}),
    row(CALL(DefinePosicao(3)), -41),

    row(CALL(Corte(3)), 0, {"> 0A", "> 0A", "> 0A", "> 1D 56 00"}),
    row(CALL(Corte(-5)), 0, {"> 1D 56 00"}),
    row(CALL(AvancaPapel(2)), 0, {"> 0A", "> 0A"}),
    row(CALL(AvancaPapel(0)), -9999),
    row(CALL(AvancaPapel(-1)), -9999),
    row(CALL(AbreGaveta(0, 50, 200)), 0, {"> 1B 70", "> 30 32 C8"}),
    row(CALL(AbreGaveta(1, 50, 0)), 0, {"> 1B 70", "> 31 32"}), // ends at the first time of 0
    row(CALL(AbreGaveta(0, 0, 5)), 0, {"> 1B 70", "> 30"}),
    row(CALL(AbreGaveta(2, 256, 0)), -121),
    row(CALL(AbreGaveta(-1, 0, 0)), -121),
    row(CALL(AbreGaveta(0, 256, 0)), -122),
    row(CALL(AbreGaveta(0, 1, -1)), -122),
    row(CALL(AbreGavetaTavlo()), 0, {"> 1B 70 30 64 64"}),
    // One of the two times may be out of its range.
    row(CALL(SinalSonoro(63, -1, 10)), 0, {"> 1B 28 41 05 00 61 64", "> 3F FF 0A"}),
    row(CALL(SinalSonoro(0, 0, 0)), 0, {"> 1B 28 41 05 00 61 64", "> 00 00 00"}),
    row(CALL(SinalSonoro(64, 26, 26)), -111),
    row(CALL(SinalSonoro(-1, 1, 1)), -111),
    row(CALL(SinalSonoro(3, 26, -1)), -112),

    row(CALL(ModoPagina()), 0, {"> 1B 4C"}),
    row(CALL(DirecaoImpressao(0)), 0, {"> 1B 54 00"}),
    row(CALL(DirecaoImpressao(3)), 0, {"> 1B 54 03"}),
    row(CALL(DirecaoImpressao(4)), -136),
    row(CALL(DirecaoImpressao(-1)), -136),
    row(CALL(DefineAreaImpressao(0, 10, 512, 1000)), 0, {"> 1B 57", "> 00 00 0A 00 00 02 E8 03"}),
    row(CALL(PosicaoImpressaoHorizontal(500)), 0, {"> 1B 24", "> F4 01"}),
    // Divided toward zero: -1 / 256 is 0, -300 / 256 is -1.
    row(CALL(PosicaoImpressaoHorizontal(-1)), 0, {"> 1B 24", "> FF 00"}),
    row(CALL(PosicaoImpressaoHorizontal(-300)), 0, {"> 1B 24", "> D4 FF"}),
    row(CALL(PosicaoImpressaoHorizontal(501)), -137),
    row(CALL(PosicaoImpressaoVertical(0)), 0, {"> 1D 24", "> 00 00"}),
    row(CALL(PosicaoImpressaoVertical(70000)), 0, {"> 1D 24", "> 70 11"}),
    row(CALL(ImprimeModoPagina()), 0, {"> 1B 0C"}),
    row(CALL(LimpaBufferModoPagina()), 0, {"> 18"}),
    row(CALL(ImprimeMPeRetornaPadrao()), 0, {"> 0C"}),
    row(CALL(ModoPadrao()), 0, {"> 1B 53"}),
};
INSTANTIATE_TEST_SUITE_P(Plain, Command, testing::ValuesIn(plainRows));

Row image(const char* key, int scale, int result, const Transcript& sends = {})
{
    const std::string arguments = (key != nullptr ? key : "") + (',' + std::to_string(scale));
    return row(
        "ImprimeImagemMemoria", arguments, [=] { return ImprimeImagemMemoria(key, scale); }, result,
        sends);
}

const Row imageRows[] = {
    image("A1 rest", 2, 0, {"> 1D 28 4C 06 00 30 45", "> 41 31 02 02"}),
    image("\x1FZ", 0, -131),
    image("1\x7F", 1, -131),
    image("ç", 1, -131),
    image("A", 1, -131),
    image(nullptr, 1, -131),
    image("A1", 0, -132),
    image(" ~", 3, -132),
};
INSTANTIATE_TEST_SUITE_P(Image, Command, testing::ValuesIn(imageRows));

Row qr(const char* content, int size, int level, int result, Transcript lines = {},
       const std::string& model = "VANTA", const char* logged = nullptr)
{
    std::string arguments = logged != nullptr ? logged : content;
    arguments += ',' + std::to_string(size) + ',' + std::to_string(level);
    lines.insert(lines.begin(), "ImpressaoQRCode. PARAMETROS:" + arguments);
    return {[=] { return ImpressaoQRCode(content, size, level); }, result, lines, model};
}

/** The standard dialect. codes: size, level, head of the data. */
Row qrOfStandard(const char* content, int size, int level, const std::array<const char*, 3>& codes,
                 const std::string& bytes, const char* logged = nullptr)
{
    const auto [sizeCode, levelCode, head] = codes;
    return qr(content, size, level, 0,
              {"> 1D 28 6B 03 00 31 43", std::string("> ") + sizeCode, "> 1D 28 6B 03 00 31 45",
               std::string("> ") + levelCode, std::string("> 1D 28 6B ") + head + " 31 50 30",
               "> " + bytes, "> 1D 28 6B 03 00 31 51 30", "> 0A", "ImpressaoQRCode. RETORNO:0"},
              "VANTA", logged);
}

/** ORLA-K's dialect. The line feed logs as a call of its own; the QR code logs no RETORNO. */
Row qrOfOrlaK(const char* content, int size, int level, const std::string& settings,
              const std::string& head, const std::string& bytes, const char* logged = nullptr)
{
    return qr(content, size, level, 0,
              {"> 1D 6F " + settings, "> 1D 6B 0B " + head, "> " + bytes, "> 00",
               "AvancaPapel. PARAMETROS:1", "> 0A", "AvancaPapel. RETORNO:0"},
              "ORLA-K", logged);
}

/** SORBE's dialect, which begins with a line feed whatever follows. */
Row qrOfSorbe(const std::string& content, int size, int level, int result,
              const std::string& codes = {}, const std::string& bytes = {})
{
    Row made = qr(nullptr, size, level, result, {"> 0A"}, "SORBE", content.c_str());
    made.call = [=] { return ImpressaoQRCode(content.c_str(), size, level); };
    const std::string& call = made.transcript.front();
    made.transcript.push_back("ImpressaoQRCodeBema" + call.substr(call.find('.')));
    if (result == 0)
        made.transcript.insert(made.transcript.end(), {"> 1D 6B 51 00", "> " + codes, "> " + bytes,
                                                       "> 0A", "ImpressaoQRCodeBEMA. RETORNO:0"});
    return made;
}

const std::string long253(253, 'x');
const std::string long256(256, 'x');
const std::string long300(300, 'x');

const Row qrRows[] = {
    qrOfStandard("0123456789", 4, 2, {"04", "31", "0D 00"}, "\"0123456789\""),
    qrOfStandard(long300.c_str(), 6, 4, {"06", "33", "2F 01"}, '"' + long300 + '"'),
    // Three characters are announced, five bytes follow.
    qrOfStandard("ção", 1, 1, {"01", "30", "06 00"}, "C3 A7 C3 A3 6F"),
    qrOfStandard("\xE7", 1, 1, {"01", "30", "04 00"}, "EF BF BD", "\uFFFD"),
    qr("", 0, 0, -51),
    qr("x", 7, 1, -51),
    qr("", 1, 0, -52),
    qr("x", 1, 5, -52),
    qr("", 1, 1, -53),
    qr(nullptr, 1, 1, -53, {}, "VANTA", ""),

    qrOfOrlaK("ABC", 3, 1, "00 03 00 02", "4C 41 2C", "\"ABC\""),
    qrOfOrlaK("A", 1, 2, "00 01 00 02", "4D 41 2C", "\"A\""),
    qrOfOrlaK("A", 6, 3, "00 06 00 02", "51 41 2C", "\"A\""),
    qrOfOrlaK("\xE7", 6, 4, "00 06 00 02", "48 41 2C", "E7", "\uFFFD"), // the caller's own bytes
    qr("", 6, 4, -53, {}, "ORLA-K"),

    qrOfSorbe("ABC", 3, 2, 0, "06 0E 01 06 00", "\"ABC\""),
    qrOfSorbe("é", 6, 1, 0, "0C 0A 01 04 00", "C3 A9"),
    qrOfSorbe("A", 1, 3, 0, "02 11 01 04 00", "\"A\""),
    qrOfSorbe("A", 1, 4, 0, "02 14 01 04 00", "\"A\""),
    qrOfSorbe("A", 1, 5, 0, "02 0E 01 04 00", "\"A\""),
    // The length is 3 more; up to 255 characters its high byte stays 0.
    qrOfSorbe(long253, 1, 1, 0, "02 0A 01 00 00", '"' + long253 + '"'),
    qrOfSorbe(long256, 1, 1, 0, "02 0A 01 03 01", '"' + long256 + '"'),
    qrOfSorbe("", 0, 0, -53),
    qrOfSorbe("A", 0, 0, -51),
    qrOfSorbe("A", 7, 1, -51),
    qrOfSorbe("A", 1, 0, -52),
    qrOfSorbe("A", 1, -3, -52),
};
INSTANTIATE_TEST_SUITE_P(QrCode, Command, testing::ValuesIn(qrRows));

/** A barcode 80 dots high with modules of 2 dots and its text below. */
Row barcode(int type, const std::string& content, const Transcript& sends, int result = 0,
            const std::string& model = "VANTA")
{
    const std::string arguments = std::to_string(type) + ',' + content + ",80,2,2";
    Transcript lines = {"ImpressaoCodigoBarras. PARAMETROS:" + arguments, "> 1D 68", "> 50",
                        "> 1D 77", "> 02"};
    if (model == "DUNEL")
        lines.push_back("> 1D 48 00");
    else if (model == "SORBE")
        lines.push_back("ImpressaoCodigoBarrasBema. PARAMETROS:" + arguments);
    else
        lines.insert(lines.end(), {"> 1D 48", "> 02"});
    lines.insert(lines.end(), sends.begin(), sends.end());
    if (result == 0)
        lines.push_back("ImpressaoCodigoBarras. RETORNO:0");
    return {[=] { return ImpressaoCodigoBarras(type, content.c_str(), 80, 2, 2); }, result, lines,
            model};
}

Row wrongBarcode(int type, int height, int width, int position, int result,
                 const char* content = "")
{
    std::string arguments = std::to_string(type) + ',' + (content != nullptr ? content : "");
    for (const int number : {height, width, position})
        arguments += ',' + std::to_string(number);
    return row(
        "ImpressaoCodigoBarras", arguments,
        [=] { return ImpressaoCodigoBarras(type, content, height, width, position); }, result);
}

const std::string set128 = "{B" + std::string(254, '1');

const Row barcodeRows[] = {
    barcode(2, "7891000315507", {"> 1D 6B 43 0D", "> \"7891000315507\""}),
    barcode(2, "7891000315507", {"> 1D 6B 43 0D", "> \"7891000315507\""}, 0, "DUNEL"),
    barcode(2, "7891000315507", {"> 1D 6B 43 0D", "> \"7891000315507\""}, 0, "SORBE"),
    barcode(8, "{B12", {"> 1D 6B 49 04", "> \"{B12\""}),
    barcode(8, "{B12", {"> 1D 6B 49 02", "> \"12\""}, 0, "SORBE"),
    barcode(8, "{C0412", {"> 1D 6B 49 04", "> \"0412\""}, 0, "SORBE"),
    barcode(8, "Abc", {"> 1D 6B 49 03", "> \"Abc\""}, 0, "SORBE"),
    // 256 bytes: the length's byte is 0, which ends the head.
    barcode(8, set128, {"> 1D 6B 49", "> \"" + set128 + '"'}),
    // Set C: a byte for two digits, the last one for one; what is no number is 0.
    barcode(8, "{C0412", {"> 1D 6B 49 04", "> 7B", "> 43", "> 04", "> 0C"}),
    barcode(8, "{C00", {"> 1D 6B 49 03", "> 7B", "> 43", "> 00"}),
    barcode(8, "{C041", {"> 1D 6B 49 03", "> 7B", "> 43", "> 04", "> 01"}),
    barcode(8, "{C1AA1", {"> 1D 6B 49 04", "> 7B", "> 43", "> 01", "> 00"}),
    barcode(8, "{C", {"> 1D 6B 49 02", "> 7B", "> 43"}, -9999),
    wrongBarcode(9, 0, 0, 0, -64),
    wrongBarcode(-1, 1, 1, 1, -64),
    wrongBarcode(0, 0, 0, 0, -61),
    wrongBarcode(0, 256, 1, 1, -61),
    wrongBarcode(0, 255, 0, 0, -62),
    wrongBarcode(0, 1, 7, 1, -62),
    wrongBarcode(0, 1, 6, 0, -63),
    wrongBarcode(0, 1, 1, 5, -63),
    wrongBarcode(8, 1, 1, 4, -65, nullptr),
};
INSTANTIATE_TEST_SUITE_P(Barcode, Command, testing::ValuesIn(barcodeRows));

TEST_F(ExportTest, BarcodesAcceptWhatTheirSymbologyHolds)
{
    using Contents = std::vector<std::string>;
    const std::string most(255, 'A');
    const std::pair<Contents, Contents> goodAndBad[] = {
        {{"12345678901", "123456789012"}, {"1234567890", "1234567890123", "1234567890A", ""}},
        {{"01234567890", "012345678901"}, {"112345678901", "0123456789", "0123456789012"}},
        {{"123456789012", "1234567890123"}, {"12345678901", "12345678901234", "12345678901 "}},
        {{"1234567", "12345678"}, {"123456", "123456789", "1234567x"}},
        {{"AZ09 $%*+-./", most}, {"", "abc", "A_B", most + 'A', "\xC3\x87"}},
        {{"1234"}, {"", "123", "12a4"}},
        {{"A123B", "c-$:/.+D", "AB"}, {"", "A", "123", "A12", "12B", "E12A", "AxB"}},
        {{"aZ~\x01", most}, {"", "\xC3\xA9", most + 'A'}},
        {{"{Aabc", "{B\x7F"}, {"", "{", "abc", "{Dabc", "{B\xC3\xA9"}},
    };
    openTcp();
    int type = 0;
    for (const auto& [good, bad] : goodAndBad) {
        for (const std::string& content : good)
            EXPECT_EQ(0, ImpressaoCodigoBarras(type, content.c_str(), 1, 1, 1))
                << type << ' ' << content;
        for (const std::string& content : bad)
            EXPECT_EQ(-65, ImpressaoCodigoBarras(type, content.c_str(), 1, 1, 1))
                << type << ' ' << content;
        ++type;
    }
}

TEST_F(ExportTest, StoredSpacingReplacesTheResetForGoodAlsoOverAClose)
{
    openTcp();
    EspacamentoEntreLinhas(30);
    ImpressaoTexto("x", 1, 8, 17);
    EXPECT_TRUE(
        sameBytes(hex("1B 33 1E  1B 61 01  1B 45 01  1D 21 11  1B 74 10") + 'x', takeSent()));
    FechaConexaoImpressora();
    openTcp();
    ImpressaoTexto("x", 0, 0, 0);
    EXPECT_TRUE(sameBytes(hex("1B 33 1E  1B 74 10") + 'x', takeSent()));
}

TEST_F(ExportTest, PageModeEndsTheResetForGoodAlsoOverAClose)
{
    openTcp();
    ModoPagina();
    ModoPadrao();
    FechaConexaoImpressora();
    openTcp();
    ImpressaoTexto("x", 0, 0, 0);
    EXPECT_TRUE(sameBytes(hex("1B 74 10") + 'x', takeSent()));
}

TEST_F(ExportTest, TheVersionIsANewTextAtEachCall)
{
    const char* first = GetVersaoDLL();
    EXPECT_STREQ("01.01.00", first);
    EXPECT_NE(first, GetVersaoDLL());
}

} // namespace
