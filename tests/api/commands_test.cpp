// What each command export sends and answers. Those of which the English family's are mere forwards
// are tested there.

#include "export_fixture.h"

#include <functional>

using namespace q7test;

namespace
{

struct Row {
    const char* name;
    std::function<int()> call;
    int result;
    std::string bytes = {}; // in the form of golden files
    std::string model = "VANTA";
};

#define CALL(call) #call, [] { return call; }

void PrintTo(const Row& row, std::ostream* out)
{
    *out << row.name << " on " << row.model;
}

class Command : public ExportTest, public testing::WithParamInterface<Row>
{
};

TEST_P(Command, SendsAndAnswers)
{
    const Row& row = GetParam();
    EXPECT_EQ(Q7_ERR_NOT_OPEN, row.call()); // whatever its arguments: the link is tested first
    PrinterScript script;
    script.model = row.model;
    openTcp(script);
    EXPECT_EQ(row.result, row.call());
    EXPECT_TRUE(sameBytes(encoded({row.bytes}), takeSent()));
}

const std::string long253(253, 'x');
const std::string long255(255, 'x');
const std::string long256(256, 'x');

#define CODE128(data) CALL(ImpressaoCodigoBarras(8, data, 80, 2, 2))

const std::string set128 = "{B" + std::string(254, '1');
const std::string settings = "1D 68 50  1D 77 02  1D 48 02  ";
const std::string settingsOfSorbe = "1D 68 50  1D 77 02  ";

const Row commandRows[] = {
    {CALL(ImpressaoTexto("x", 2, 15, 119)), 1,
     R"(1B 40  1B 61 02  1B 21 01  1B 21 80  1D 42 01  1B 45 01  1D 21 77  1B 74 10 "x")"},
    {CALL(ImpressaoTexto("ação €\n", 0, 0, 0)), 7, R"(1B 40  1B 74 10 "ação ?\n")"},
    {CALL(ImpressaoTexto("\xFF\xE3o\xC3", 0, 0, 0)), 4, R"(1B 40  1B 74 10 "??o?")"},
    {CALL(ImpressaoTexto(nullptr, 0, 0, 0)), -44, "1B 40  1B 74 10"},
    {CALL(ImpressaoTexto("x", -1, 16, 120)), -41},
    {CALL(ImpressaoTexto("x", 0, 16, 120)), -42},
    {CALL(ImpressaoTexto("x", 0, 0, 120)), -43},
    {CALL(EspacamentoEntreLinhas(0)), -43},
    {CALL(EspacamentoEntreLinhas(1)), 0},
    {CALL(EspacamentoEntreLinhas(255)), 0},
    {CALL(DefinePosicao(0)), 0, "1B 61 00"},
    {CALL(DefinePosicao(-1)), 0, "1B 61 FF"},
    {CALL(DefinePosicao(3)), -41},

    {CALL(Corte(-5)), 0, "1D 56 00"},
    {CALL(AvancaPapel(0)), -9999},
    {CALL(AbreGaveta(1, 50, 0)), 0, "1B 70 31 32"}, // ends at the first time of 0
    {CALL(AbreGaveta(2, 256, 0)), -121},
    {CALL(AbreGaveta(0, 256, 0)), -122},
    {CALL(AbreGaveta(-1, 0, 0)), -121},
    {CALL(AbreGaveta(0, -1, 0)), -122},
    {CALL(AbreGaveta(0, 0, 256)), -122},
    {CALL(AbreGaveta(0, 0, -1)), -122},
    {CALL(AbreGaveta(0, 0, 255)), 0, "1B 70 30"},
    {CALL(AbreGaveta(0, 255, 255)), 0, "1B 70 30 FF FF"},
    {CALL(AbreGavetaTavlo()), 0, "1B 70 30 64 64"},
    // One of the two times may be out of its range.
    {CALL(SinalSonoro(63, 0, 255)), 0, "1B 28 41 05 00 61 64  3F 00 FF"},
    {CALL(SinalSonoro(64, 26, 26)), -111},
    {CALL(SinalSonoro(3, 26, -1)), -112},

    {CALL(DirecaoImpressao(3)), 0, "1B 54 03"},
    {CALL(DirecaoImpressao(4)), -136},
    {CALL(DirecaoImpressao(0)), 0, "1B 54 00"},
    {CALL(DirecaoImpressao(-1)), -136},
    {CALL(PosicaoImpressaoHorizontal(-300)), 0, "1B 24 D4 FF"}, // / 256, toward zero: -1
    {CALL(PosicaoImpressaoHorizontal(501)), -137},
    {CALL(PosicaoImpressaoVertical(70000)), 0, "1D 24 70 11"},
    {CALL(ModoPadrao()), 0, "1B 53"},

    {CALL(ImprimeImagemMemoria("A1 rest", 2)), 0, "1D 28 4C 06 00 30 45  41 31 02 02"},
    {CALL(ImprimeImagemMemoria("A", 3)), -131},
    {CALL(ImprimeImagemMemoria(nullptr, 1)), -131},
    {CALL(ImprimeImagemMemoria(" ~", 3)), -132},
    {CALL(ImprimeImagemMemoria(" ~", 0)), -132},
    {CALL(ImprimeImagemMemoria(" ~", 1)), 0, "1D 28 4C 06 00 30 45  20 7E 01 01"},

    // Three characters are announced, five bytes follow.
    {CALL(ImpressaoQRCode("ção", 1, 1)), 0,
     "1D 28 6B 03 00 31 43 01  1D 28 6B 03 00 31 45 30  1D 28 6B 06 00 31 50 30  C3 A7 C3 A3 6F"
     "  1D 28 6B 03 00 31 51 30  0A"},
    {CALL(ImpressaoQRCode("", 7, 5)), -51},
    {CALL(ImpressaoQRCode("", 0, 5)), -51},
    {CALL(ImpressaoQRCode("", 1, 0)), -52},
    {CALL(ImpressaoQRCode("", 6, 5)), -52},
    {CALL(ImpressaoQRCode(nullptr, 6, 4)), -53},
    {CALL(ImpressaoQRCode("A", 1, 2)), 0, "1D 6F 00 01 00 02  1D 6B 0B 4D 41 2C  41 00 0A",
     "ORLA-K"},
    {CALL(ImpressaoQRCode("A", 1, 3)), 0, "1D 6F 00 01 00 02  1D 6B 0B 51 41 2C  41 00 0A",
     "ORLA-K"},
    // The caller's own bytes, though they are no UTF-8.
    {CALL(ImpressaoQRCode("\xE7", 6, 4)), 0, "1D 6F 00 06 00 02  1D 6B 0B 48 41 2C  E7 00 0A",
     "ORLA-K"},
    // A line feed, whatever follows.
    {CALL(ImpressaoQRCode("é", 6, 1)), 0, "0A  1D 6B 51 00  0C 0A 01 04 00  C3 A9  0A", "SORBE"},
    {CALL(ImpressaoQRCode("A", 1, 3)), 0, "0A  1D 6B 51 00  02 11 01 04 00  41  0A", "SORBE"},
    {CALL(ImpressaoQRCode("A", 1, 4)), 0, "0A  1D 6B 51 00  02 14 01 04 00  41  0A", "SORBE"},
    {CALL(ImpressaoQRCode("A", 1, 5)), 0, "0A  1D 6B 51 00  02 0E 01 04 00  41  0A", "SORBE"},
    // The length is 3 more; up to 255 characters its high byte stays 0.
    {CALL(ImpressaoQRCode(long253.c_str(), 1, 1)), 0,
     "0A  1D 6B 51 00  02 0A 01 00 00 \"" + long253 + "\" 0A", "SORBE"},
    {CALL(ImpressaoQRCode(long255.c_str(), 1, 1)), 0,
     "0A  1D 6B 51 00  02 0A 01 02 00 \"" + long255 + "\" 0A", "SORBE"},
    {CALL(ImpressaoQRCode(long256.c_str(), 1, 1)), 0,
     "0A  1D 6B 51 00  02 0A 01 03 01 \"" + long256 + "\" 0A", "SORBE"},
    {CALL(ImpressaoQRCode("", 0, 0)), -53, "0A", "SORBE"},
    {CALL(ImpressaoQRCode("A", 0, 0)), -51, "0A", "SORBE"},
    {CALL(ImpressaoQRCode("A", 1, 0)), -52, "0A", "SORBE"},

    {CODE128("{B12"), 0, settingsOfSorbe + "1D 6B 49 02 \"12\"", "SORBE"},
    {CODE128("Abc"), 0, settingsOfSorbe + "1D 6B 49 03 \"Abc\"", "SORBE"},
    // 256 bytes: the length's byte is 0, which ends the head.
    {CODE128(set128.c_str()), 0, settings + "1D 6B 49 \"" + set128 + '"'},
    // Set C: a byte for two digits, the last one for one; what is no number is 0.
    {CODE128("{C041"), 0, settings + "1D 6B 49 03  7B 43  04 01"},
    {CODE128("{C1AA1"), 0, settings + "1D 6B 49 04  7B 43  01 00"},
    {CODE128("{C"), -9999, settings + "1D 6B 49 02  7B 43"},
    {CALL(ImpressaoCodigoBarras(9, nullptr, 0, 0, 0)), -64},
    {CALL(ImpressaoCodigoBarras(8, nullptr, 256, 7, 5)), -61},
    {CALL(ImpressaoCodigoBarras(8, nullptr, 255, 7, 5)), -62},
    {CALL(ImpressaoCodigoBarras(8, nullptr, 255, 6, 5)), -63},
    {CALL(ImpressaoCodigoBarras(8, nullptr, 255, 6, 4)), -65},
    {CALL(ImpressaoCodigoBarras(-1, nullptr, 0, 0, 0)), -64},
    {CALL(ImpressaoCodigoBarras(0, nullptr, 0, 0, 0)), -61},
    {CALL(ImpressaoCodigoBarras(0, nullptr, 1, 0, 0)), -62},
    {CALL(ImpressaoCodigoBarras(0, nullptr, 1, 1, 0)), -63},
    {CALL(ImpressaoCodigoBarras(0, nullptr, 1, 1, 1)), -65},
};
INSTANTIATE_TEST_SUITE_P(Exports, Command, testing::ValuesIn(commandRows));

TEST_F(ExportTest, CallsAreLogged)
{
    const struct {
        const char* model;
        std::function<void()> call;
        Transcript transcript;
    } rows[] = {
        {"VANTA",
         [] { SinalSonoro(1, 2, 3); },
         {"SinalSonoro. PARAMETROS:1,2,3", "> 1B 28 41 05 00 61 64", "> 01 02 03",
          "SinalSonoro. RETORNO:0"}},
        {"VANTA",
         [] { AbreGavetaTavlo(), ModoPadrao(); },
         {"AbreGavetaTavlo. PARAMETROS:", "> 1B 70 30 64 64", "AbreGavetaTavlo. RETORNO:0",
          "ModoPadrao. PARAMETROS:", "> 1B 53", "ModoPadrao. RETORNO:0"}},
        {"VANTA", [] { DefinePosicao(3); }, {"DefinePosicao. PARAMETROS:3"}}, // refused
        // The line feed logs as a call of its own; the QR code logs no RETORNO.
        {"ORLA-K",
         [] { ImpressaoQRCode("ç", 3, 1); },
         {"ImpressaoQRCode. PARAMETROS:ç,3,1", "> 1D 6F 00 03 00 02", "> 1D 6B 0B 4C 41 2C",
          "> C3 A7", "> 00", "AvancaPapel. PARAMETROS:1", "> 0A", "AvancaPapel. RETORNO:0"}},
        {"SORBE",
         [] { ImpressaoQRCode("A", 3, 2); },
         {"ImpressaoQRCode. PARAMETROS:A,3,2", "> 0A", "ImpressaoQRCodeBema. PARAMETROS:A,3,2",
          "> 1D 6B 51 00", "> 06 0E 01 04 00", "> 41", "> 0A", "ImpressaoQRCodeBEMA. RETORNO:0"}},
    };
    for (const auto& [model, call, transcript] : rows) {
        FechaConexaoImpressora();
        PrinterScript script;
        script.model = model;
        openTcp(script);
        call();
        EXPECT_EQ(logOf(transcript), data.takeLog());
    }
}

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
