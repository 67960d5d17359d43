// What each command export sends, answers and logs.

#include "export_fixture.h"

#include <functional>

using namespace q7test;

namespace
{

struct Row {
    std::string name;
    std::function<int()> call;
    int result;
    Transcript transcript; // its first line is the call's PARAMETROS line
    std::string model = "VANTA";
};

void PrintTo(const Row& row, std::ostream* out)
{
    *out << row.name;
}

std::string nameOf(const testing::TestParamInfo<Row>& info)
{
    return info.param.name;
}

/** An ImpressaoTexto that begins with a reset. */
Transcript text(const std::string& arguments, const Transcript& sends, int result)
{
    Transcript lines = {"ImpressaoTexto. PARAMETROS:" + arguments,
                        "InicializaImpressora. PARAMETROS:", "> 1B 40",
                        "InicializaImpressora. RETORNO:0"};
    lines.insert(lines.end(), sends.begin(), sends.end());
    lines.push_back("ImpressaoTexto. RETORNO:" + std::to_string(result));
    return lines;
}

/** The frame of every export that answers 0. */
Transcript call(const std::string& name, const std::string& arguments, const Transcript& sends)
{
    Transcript lines = {name + ". PARAMETROS:" + arguments};
    lines.insert(lines.end(), sends.begin(), sends.end());
    lines.push_back(name + ". RETORNO:0");
    return lines;
}

class Command : public ExportTest, public testing::WithParamInterface<Row>
{
};

TEST_P(Command, SendsAnswersAndLogs)
{
    const Row& row = GetParam();
    PrinterScript script;
    script.model = row.model;
    openTcp(script);
    EXPECT_EQ(row.result, row.call());
    EXPECT_EQ(logOf(row.transcript), data.takeLog());
    EXPECT_TRUE(sameBytes(bytesOf(row.transcript), takeSent()));
}

const Row textRows[] = {
    {"Reset", [] { return InicializaImpressora(); }, 0,
     call("InicializaImpressora", "", {"> 1B 40"})},
    {"Plain", [] { return ImpressaoTexto("abc\n", 0, 0, 0); }, 4,
     text("abc\n,0,0,0", {"> 1B 74", "> 10", R"(> "abc\n")"}, 4)},
    {"EveryStyle", [] { return ImpressaoTexto("x", 2, 15, 119); }, 1,
     text("x,2,15,119",
          {"> 1B 61", "> 02", "> 1B 21 01", "> 1B 21 80", "> 1D 42 01", "> 1B 45 01", "> 1D 21",
           "> 77", "> 1B 74", "> 10", "> \"x\""},
          1)},
    // The log's lines go out as Latin-1 and are read as UTF-8; the printer gets Latin-1.
    {"Accents", [] { return ImpressaoTexto("ação €\n", 0, 0, 0); }, 7,
     text("a\uFFFD\uFFFDo ?\n,0,0,0", {"> 1B 74", "> 10", R"(> "ação ?\n")"}, 7)},
    {"NotUtf8", [] { return ImpressaoTexto("\xFF\xE3o\xC3", 0, 0, 0); }, 4,
     text("??o?,0,0,0", {"> 1B 74", "> 10", "> \"??o?\""}, 4)},
    {"Empty", [] { return ImpressaoTexto("", 0, 0, 0); }, -44,
     text(",0,0,0", {"> 1B 74", "> 10", ">"}, -44)},
    {"Null", [] { return ImpressaoTexto(nullptr, 0, 0, 0); }, -44,
     text(",0,0,0", {"> 1B 74", "> 10", ">"}, -44)},
    {"AlignmentLow",
     [] { return ImpressaoTexto("x", -1, 16, 120); },
     -41,
     {"ImpressaoTexto. PARAMETROS:x,-1,16,120"}},
    {"AlignmentHigh",
     [] { return ImpressaoTexto("x", 3, 0, 0); },
     -41,
     {"ImpressaoTexto. PARAMETROS:x,3,0,0"}},
    {"StyleLow",
     [] { return ImpressaoTexto("x", 0, -1, 120); },
     -42,
     {"ImpressaoTexto. PARAMETROS:x,0,-1,120"}},
    {"StyleHigh",
     [] { return ImpressaoTexto("x", 0, 16, 0); },
     -42,
     {"ImpressaoTexto. PARAMETROS:x,0,16,0"}},
    {"SizeLow",
     [] { return ImpressaoTexto("x", 0, 0, -1); },
     -43,
     {"ImpressaoTexto. PARAMETROS:x,0,0,-1"}},
    {"SizeHigh",
     [] { return ImpressaoTexto("x", 0, 0, 120); },
     -43,
     {"ImpressaoTexto. PARAMETROS:x,0,0,120"}},
    {"Spacing",
     [] { return EspacamentoEntreLinhas(255); },
     0,
     {"EspaçamentoEntreLinhas. PARAMETROS:255"}},
    {"SpacingLow",
     [] { return EspacamentoEntreLinhas(0); },
     -43,
     {"EspaçamentoEntreLinhas. PARAMETROS:0"}},
    {"SpacingHigh",
     [] { return EspacamentoEntreLinhas(256); },
     -43,
     {"EspaçamentoEntreLinhas. PARAMETROS:256"}},
    {"PositionLeft", [] { return DefinePosicao(0); }, 0,
     call("DefinePosicao", "0", {"> 1B 61", "> 00"})},
    {"PositionNegative", [] { return DefinePosicao(-1); }, 0,
     call("DefinePosicao", "-1", {"> 1B 61", "> FF"})},
    {"PositionHigh", [] { return DefinePosicao(3); }, -41, {"DefinePosicao. PARAMETROS:3"}},
};
INSTANTIATE_TEST_SUITE_P(Text, Command, testing::ValuesIn(textRows), nameOf);

const Row paperRows[] = {
    {"CutAfterFeed", [] { return Corte(3); }, 0,
     call("Corte", "3", {"> 0A", "> 0A", "> 0A", "> 1D 56 00"})},
    {"CutNegative", [] { return Corte(-5); }, 0, call("Corte", "-5", {"> 1D 56 00"})},
    {"Feed", [] { return AvancaPapel(2); }, 0, call("AvancaPapel", "2", {"> 0A", "> 0A"})},
    {"FeedNothing", [] { return AvancaPapel(0); }, -9999, {"AvancaPapel. PARAMETROS:0"}},
    {"FeedNegative", [] { return AvancaPapel(-1); }, -9999, {"AvancaPapel. PARAMETROS:-1"}},
    {"Drawer", [] { return AbreGaveta(0, 50, 200); }, 0,
     call("AbreGaveta", "0,50,200", {"> 1B 70", "> 30 32 C8"})},
    {"DrawerNoOffTime", [] { return AbreGaveta(1, 50, 0); }, 0,
     call("AbreGaveta", "1,50,0", {"> 1B 70", "> 31 32"})},
    {"DrawerNoOnTime", [] { return AbreGaveta(0, 0, 5); }, 0,
     call("AbreGaveta", "0,0,5", {"> 1B 70", "> 30"})},
    {"DrawerPinHigh",
     [] { return AbreGaveta(2, 256, 0); },
     -121,
     {"AbreGaveta. PARAMETROS:2,256,0"}},
    {"DrawerPinNegative",
     [] { return AbreGaveta(-1, 0, 0); },
     -121,
     {"AbreGaveta. PARAMETROS:-1,0,0"}},
    {"DrawerOnTimeHigh",
     [] { return AbreGaveta(0, 256, 0); },
     -122,
     {"AbreGaveta. PARAMETROS:0,256,0"}},
    {"DrawerOffTimeNegative",
     [] { return AbreGaveta(0, 1, -1); },
     -122,
     {"AbreGaveta. PARAMETROS:0,1,-1"}},
    {"DrawerDefault", [] { return AbreGavetaTavlo(); }, 0,
     call("AbreGavetaTavlo", "", {"> 1B 70 30 64 64"})},
    {"BuzzerOneTimeLong", [] { return SinalSonoro(63, -1, 10); }, 0,
     call("SinalSonoro", "63,-1,10", {"> 1B 28 41 05 00 61 64", "> 3F FF 0A"})},
    {"BuzzerZeros", [] { return SinalSonoro(0, 0, 0); }, 0,
     call("SinalSonoro", "0,0,0", {"> 1B 28 41 05 00 61 64", "> 00 00 00"})},
    {"BuzzerCountHigh",
     [] { return SinalSonoro(64, 26, 26); },
     -111,
     {"SinalSonoro. PARAMETROS:64,26,26"}},
    {"BuzzerCountNegative",
     [] { return SinalSonoro(-1, 1, 1); },
     -111,
     {"SinalSonoro. PARAMETROS:-1,1,1"}},
    {"BuzzerBothTimesLong",
     [] { return SinalSonoro(3, 26, -1); },
     -112,
     {"SinalSonoro. PARAMETROS:3,26,-1"}},
};
INSTANTIATE_TEST_SUITE_P(Paper, Command, testing::ValuesIn(paperRows), nameOf);

const Row pageRows[] = {
    {"Enter", [] { return ModoPagina(); }, 0, call("ModoPagina", "", {"> 1B 4C"})},
    {"Direction0", [] { return DirecaoImpressao(0); }, 0,
     call("DirecaoImpressao", "0", {"> 1B 54 00"})},
    {"Direction3", [] { return DirecaoImpressao(3); }, 0,
     call("DirecaoImpressao", "3", {"> 1B 54 03"})},
    {"DirectionHigh", [] { return DirecaoImpressao(4); }, -136, {"DirecaoImpressao. PARAMETROS:4"}},
    {"DirectionNegative",
     [] { return DirecaoImpressao(-1); },
     -136,
     {"DirecaoImpressao. PARAMETROS:-1"}},
    {"Area", [] { return DefineAreaImpressao(0, 10, 512, 1000); }, 0,
     call("DefineAreaImpressao", "0,10,512,1000", {"> 1B 57", "> 00 00 0A 00 00 02 E8 03"})},
    {"Horizontal", [] { return PosicaoImpressaoHorizontal(500); }, 0,
     call("PosicaoImpressaoHorizontal", "500", {"> 1B 24", "> F4 01"})},
    // Divided toward zero: -1 / 256 is 0, -300 / 256 is -1.
    {"HorizontalMinus1", [] { return PosicaoImpressaoHorizontal(-1); }, 0,
     call("PosicaoImpressaoHorizontal", "-1", {"> 1B 24", "> FF 00"})},
    {"HorizontalMinus300", [] { return PosicaoImpressaoHorizontal(-300); }, 0,
     call("PosicaoImpressaoHorizontal", "-300", {"> 1B 24", "> D4 FF"})},
    {"HorizontalHigh",
     [] { return PosicaoImpressaoHorizontal(501); },
     -137,
     {"PosicaoImpressaoHorizontal. PARAMETROS:501"}},
    {"VerticalZero", [] { return PosicaoImpressaoVertical(0); }, 0,
     call("PosicaoImpressaoVertical", "0", {"> 1D 24", "> 00 00"})},
    {"VerticalBeyondAWord", [] { return PosicaoImpressaoVertical(70000); }, 0,
     call("PosicaoImpressaoVertical", "70000", {"> 1D 24", "> 70 11"})},
    {"Print", [] { return ImprimeModoPagina(); }, 0, call("ImprimeModoPagina", "", {"> 1B 0C"})},
    {"Clear", [] { return LimpaBufferModoPagina(); }, 0,
     call("LimpaBufferModoPagina", "", {"> 18"})},
    {"PrintAndLeave", [] { return ImprimeMPeRetornaPadrao(); }, 0,
     call("ImprimeMPeRetornaPadrao", "", {"> 0C"})},
    {"Leave", [] { return ModoPadrao(); }, 0, call("ModoPadrao", "", {"> 1B 53"})},
};
INSTANTIATE_TEST_SUITE_P(PageMode, Command, testing::ValuesIn(pageRows), nameOf);

const Row imageRows[] = {
    {"Scale2", [] { return ImprimeImagemMemoria("A1 rest", 2); }, 0,
     call("ImprimeImagemMemoria", "A1 rest,2", {"> 1D 28 4C 06 00 30 45", "> 41 31 02 02"})},
    {"KeyControl",
     [] {
         return ImprimeImagemMemoria("\x1F"
                                     "1",
                                     0);
     },
     -131,
     {"ImprimeImagemMemoria. PARAMETROS:\x1F"
      "1,0"}},
    {"KeyDelete",
     [] { return ImprimeImagemMemoria("1\x7F", 1); },
     -131,
     {"ImprimeImagemMemoria. PARAMETROS:1\x7F,1"}},
    {"KeyAccent",
     [] { return ImprimeImagemMemoria("ç", 1); },
     -131,
     {"ImprimeImagemMemoria. PARAMETROS:ç,1"}},
    {"KeyShort",
     [] { return ImprimeImagemMemoria("A", 1); },
     -131,
     {"ImprimeImagemMemoria. PARAMETROS:A,1"}},
    {"KeyNull",
     [] { return ImprimeImagemMemoria(nullptr, 1); },
     -131,
     {"ImprimeImagemMemoria. PARAMETROS:,1"}},
    {"ScaleLow",
     [] { return ImprimeImagemMemoria("A1", 0); },
     -132,
     {"ImprimeImagemMemoria. PARAMETROS:A1,0"}},
    {"ScaleHigh",
     [] { return ImprimeImagemMemoria(" ~", 3); },
     -132,
     {"ImprimeImagemMemoria. PARAMETROS: ~,3"}},
};
INSTANTIATE_TEST_SUITE_P(Image, Command, testing::ValuesIn(imageRows), nameOf);

/** The standard dialect: size, level, header and data of a QR code. */
Transcript qr(const std::string& arguments, const Transcript& sizeLevelHeadData)
{
    return call("ImpressaoQRCode", arguments,
                {"> 1D 28 6B 03 00 31 43", sizeLevelHeadData[0], "> 1D 28 6B 03 00 31 45",
                 sizeLevelHeadData[1], sizeLevelHeadData[2], sizeLevelHeadData[3],
                 "> 1D 28 6B 03 00 31 51 30", "> 0A"});
}

/** ORLA-K's dialect. The line feed logs as a call of its own; the QR code logs no RETORNO. */
Transcript qrOfOrlaK(const std::string& arguments, const Transcript& headHeadData)
{
    return {"ImpressaoQRCode. PARAMETROS:" + arguments,
            headHeadData[0],
            headHeadData[1],
            headHeadData[2],
            "> 00",
            "AvancaPapel. PARAMETROS:1",
            "> 0A",
            "AvancaPapel. RETORNO:0"};
}

/** SORBE's dialect, which begins with a line feed whatever follows. */
Transcript qrOfSorbe(const std::string& arguments, const Transcript& sizesAndData = {})
{
    Transcript lines = {"ImpressaoQRCode. PARAMETROS:" + arguments, "> 0A",
                        "ImpressaoQRCodeBema. PARAMETROS:" + arguments};
    if (!sizesAndData.empty())
        for (const std::string& line :
             {std::string("> 1D 6B 51 00"), sizesAndData[0], sizesAndData[1], std::string("> 0A"),
              std::string("ImpressaoQRCodeBEMA. RETORNO:0")})
            lines.push_back(line);
    return lines;
}

const std::string long253(253, 'x');
const std::string long256(256, 'x');
const std::string long300(300, 'x');

const Row qrRows[] = {
    {"Standard", [] { return ImpressaoQRCode("0123456789", 4, 2); }, 0,
     qr("0123456789,4,2", {"> 04", "> 31", "> 1D 28 6B 0D 00 31 50 30", "> \"0123456789\""})},
    {"Long", [] { return ImpressaoQRCode(long300.c_str(), 6, 4); }, 0,
     qr(long300 + ",6,4", {"> 06", "> 33", "> 1D 28 6B 2F 01 31 50 30", "> \"" + long300 + '"'})},
    // Three characters are announced, five bytes follow.
    {"Accents", [] { return ImpressaoQRCode("ção", 1, 1); }, 0,
     qr("ção,1,1", {"> 01", "> 30", "> 1D 28 6B 06 00 31 50 30", "> C3 A7 C3 A3 6F"})},
    {"NotUtf8", [] { return ImpressaoQRCode("\xE7", 1, 1); }, 0,
     qr("\uFFFD,1,1", {"> 01", "> 30", "> 1D 28 6B 04 00 31 50 30", "> EF BF BD"})},
    {"SizeLow",
     [] { return ImpressaoQRCode("", 0, 0); },
     -51,
     {"ImpressaoQRCode. PARAMETROS:,0,0"}},
    {"SizeHigh",
     [] { return ImpressaoQRCode("x", 7, 1); },
     -51,
     {"ImpressaoQRCode. PARAMETROS:x,7,1"}},
    {"LevelLow",
     [] { return ImpressaoQRCode("", 1, 0); },
     -52,
     {"ImpressaoQRCode. PARAMETROS:,1,0"}},
    {"LevelHigh",
     [] { return ImpressaoQRCode("x", 1, 5); },
     -52,
     {"ImpressaoQRCode. PARAMETROS:x,1,5"}},
    {"Empty", [] { return ImpressaoQRCode("", 1, 1); }, -53, {"ImpressaoQRCode. PARAMETROS:,1,1"}},
    {"Null",
     [] { return ImpressaoQRCode(nullptr, 1, 1); },
     -53,
     {"ImpressaoQRCode. PARAMETROS:,1,1"}},

    {"OrlaKLow", [] { return ImpressaoQRCode("ABC", 3, 1); }, 0,
     qrOfOrlaK("ABC,3,1", {"> 1D 6F 00 03 00 02", "> 1D 6B 0B 4C 41 2C", "> \"ABC\""}), "ORLA-K"},
    {"OrlaKMedium", [] { return ImpressaoQRCode("A", 1, 2); }, 0,
     qrOfOrlaK("A,1,2", {"> 1D 6F 00 01 00 02", "> 1D 6B 0B 4D 41 2C", "> \"A\""}), "ORLA-K"},
    {"OrlaKQuartile", [] { return ImpressaoQRCode("A", 6, 3); }, 0,
     qrOfOrlaK("A,6,3", {"> 1D 6F 00 06 00 02", "> 1D 6B 0B 51 41 2C", "> \"A\""}), "ORLA-K"},
    {"OrlaKHighNotUtf8", [] { return ImpressaoQRCode("\xE7", 6, 4); }, 0, // the caller's own bytes
     qrOfOrlaK("\uFFFD,6,4", {"> 1D 6F 00 06 00 02", "> 1D 6B 0B 48 41 2C", "> E7"}), "ORLA-K"},
    {"OrlaKEmpty",
     [] { return ImpressaoQRCode("", 6, 4); },
     -53,
     {"ImpressaoQRCode. PARAMETROS:,6,4"},
     "ORLA-K"},

    {"Sorbe", [] { return ImpressaoQRCode("ABC", 3, 2); }, 0,
     qrOfSorbe("ABC,3,2", {"> 06 0E 01 06 00", "> \"ABC\""}), "SORBE"},
    {"SorbeLow", [] { return ImpressaoQRCode("é", 6, 1); }, 0,
     qrOfSorbe("é,6,1", {"> 0C 0A 01 04 00", "> C3 A9"}), "SORBE"},
    {"SorbeQuartile", [] { return ImpressaoQRCode("A", 1, 3); }, 0,
     qrOfSorbe("A,1,3", {"> 02 11 01 04 00", "> \"A\""}), "SORBE"},
    {"SorbeHigh", [] { return ImpressaoQRCode("A", 1, 4); }, 0,
     qrOfSorbe("A,1,4", {"> 02 14 01 04 00", "> \"A\""}), "SORBE"},
    {"SorbeLevel5", [] { return ImpressaoQRCode("A", 1, 5); }, 0,
     qrOfSorbe("A,1,5", {"> 02 0E 01 04 00", "> \"A\""}), "SORBE"},
    {"SorbeHighByteHeldBack", [] { return ImpressaoQRCode(long253.c_str(), 1, 1); }, 0,
     qrOfSorbe(long253 + ",1,1", {"> 02 0A 01 00 00", "> \"" + long253 + '"'}), "SORBE"},
    {"SorbeHighByte", [] { return ImpressaoQRCode(long256.c_str(), 1, 1); }, 0,
     qrOfSorbe(long256 + ",1,1", {"> 02 0A 01 03 01", "> \"" + long256 + '"'}), "SORBE"},
    {"SorbeEmpty", [] { return ImpressaoQRCode("", 0, 0); }, -53, qrOfSorbe(",0,0"), "SORBE"},
    {"SorbeSizeLow", [] { return ImpressaoQRCode("A", 0, 0); }, -51, qrOfSorbe("A,0,0"), "SORBE"},
    {"SorbeSizeHigh", [] { return ImpressaoQRCode("A", 7, 1); }, -51, qrOfSorbe("A,7,1"), "SORBE"},
    {"SorbeLevelZero", [] { return ImpressaoQRCode("A", 1, 0); }, -52, qrOfSorbe("A,1,0"), "SORBE"},
    {"SorbeLevelNegative", [] { return ImpressaoQRCode("A", 1, -3); }, -52, qrOfSorbe("A,1,-3"),
     "SORBE"},
};
INSTANTIATE_TEST_SUITE_P(QrCode, Command, testing::ValuesIn(qrRows), nameOf);

/** A barcode 80 dots high with modules of 2 dots and its text below. */
Row barcode(const std::string& name, int type, const std::string& content, const Transcript& sends,
            int result = 0, const std::string& model = "VANTA")
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
    return {name, [=] { return ImpressaoCodigoBarras(type, content.c_str(), 80, 2, 2); }, result,
            lines, model};
}

const std::string set128 = "{B" + std::string(254, '1');

const Row barcodeRows[] = {
    barcode("Ean13", 2, "7891000315507", {"> 1D 6B 43 0D", "> \"7891000315507\""}),
    barcode("Ean13OnDunel", 2, "7891000315507", {"> 1D 6B 43 0D", "> \"7891000315507\""}, 0,
            "DUNEL"),
    barcode("Ean13OnSorbe", 2, "7891000315507", {"> 1D 6B 43 0D", "> \"7891000315507\""}, 0,
            "SORBE"),
    barcode("SetB", 8, "{B12", {"> 1D 6B 49 04", "> \"{B12\""}),
    barcode("SetBOnSorbe", 8, "{B12", {"> 1D 6B 49 02", "> \"12\""}, 0, "SORBE"),
    barcode("SetCOnSorbe", 8, "{C0412", {"> 1D 6B 49 04", "> \"0412\""}, 0, "SORBE"),
    barcode("NoSetOnSorbe", 8, "Abc", {"> 1D 6B 49 03", "> \"Abc\""}, 0, "SORBE"),
    // 256 bytes: the length's byte is 0, which ends the head.
    barcode("LengthWraps", 8, set128, {"> 1D 6B 49", "> \"" + set128 + '"'}),
    barcode("SetC", 8, "{C0412", {"> 1D 6B 49 04", "> 7B", "> 43", "> 04", "> 0C"}),
    barcode("SetCZeroPair", 8, "{C00", {"> 1D 6B 49 03", "> 7B", "> 43", "> 00"}),
    barcode("SetCOddDigits", 8, "{C9907", {"> 1D 6B 49 04", "> 7B", "> 43", "> 63", "> 07"}),
    barcode("SetCOneLeft", 8, "{C041", {"> 1D 6B 49 03", "> 7B", "> 43", "> 04", "> 01"}),
    barcode("SetCLetters", 8, "{C1AA1", {"> 1D 6B 49 04", "> 7B", "> 43", "> 01", "> 00"}),
    barcode("SetCAlone", 8, "{C", {"> 1D 6B 49 02", "> 7B", "> 43"}, -9999),
    {"AllWrong",
     [] { return ImpressaoCodigoBarras(9, "", 0, 0, 0); },
     -64,
     {"ImpressaoCodigoBarras. PARAMETROS:9,,0,0,0"}},
    {"TypeNegative",
     [] { return ImpressaoCodigoBarras(-1, "", 1, 1, 1); },
     -64,
     {"ImpressaoCodigoBarras. PARAMETROS:-1,,1,1,1"}},
    {"HeightLow",
     [] { return ImpressaoCodigoBarras(0, "", 0, 0, 0); },
     -61,
     {"ImpressaoCodigoBarras. PARAMETROS:0,,0,0,0"}},
    {"HeightHigh",
     [] { return ImpressaoCodigoBarras(0, "", 256, 1, 1); },
     -61,
     {"ImpressaoCodigoBarras. PARAMETROS:0,,256,1,1"}},
    {"WidthLow",
     [] { return ImpressaoCodigoBarras(0, "", 255, 0, 0); },
     -62,
     {"ImpressaoCodigoBarras. PARAMETROS:0,,255,0,0"}},
    {"WidthHigh",
     [] { return ImpressaoCodigoBarras(0, "", 1, 7, 1); },
     -62,
     {"ImpressaoCodigoBarras. PARAMETROS:0,,1,7,1"}},
    {"TextLow",
     [] { return ImpressaoCodigoBarras(0, "", 1, 6, 0); },
     -63,
     {"ImpressaoCodigoBarras. PARAMETROS:0,,1,6,0"}},
    {"TextHigh",
     [] { return ImpressaoCodigoBarras(0, "", 1, 1, 5); },
     -63,
     {"ImpressaoCodigoBarras. PARAMETROS:0,,1,1,5"}},
    {"Null",
     [] { return ImpressaoCodigoBarras(8, nullptr, 1, 1, 4); },
     -65,
     {"ImpressaoCodigoBarras. PARAMETROS:8,,1,1,4"}},
};
INSTANTIATE_TEST_SUITE_P(Barcode, Command, testing::ValuesIn(barcodeRows), nameOf);

// Whatever their arguments: the link is tested first.
TEST_F(ExportTest, CommandsAnswerMinus4WithoutConnection)
{
    const auto check = [this](const auto& rows) {
        for (const Row& row : rows) {
            EXPECT_EQ(Q7_ERR_NOT_OPEN, row.call()) << row.name;
            EXPECT_EQ(logOf({row.transcript.front()}), data.takeLog());
        }
    };
    check(textRows);
    check(paperRows);
    check(pageRows);
    check(imageRows);
    check(qrRows);
    check(barcodeRows);
}

TEST_F(ExportTest, BarcodesAcceptWhatTheirSymbologyHolds)
{
    const std::string most(255, 'A');
    const std::vector<std::pair<int, std::vector<std::string>>> good = {
        {0, {"12345678901", "123456789012"}},
        {1, {"01234567890", "012345678901"}},
        {2, {"123456789012", "1234567890123"}},
        {3, {"1234567", "12345678"}},
        {4, {"AZ09 $%*+-./", most}},
        {5, {"1234"}},
        {6, {"A123B", "c-$:/.+D", "AB"}},
        {7, {"aZ~\x01", most}},
        {8, {"{Aabc", "{B\x7F"}},
    };
    const std::vector<std::pair<int, std::vector<std::string>>> bad = {
        {0, {"1234567890", "1234567890123", "1234567890A", ""}},
        {1, {"112345678901", "0123456789", "0123456789012"}},
        {2, {"12345678901", "12345678901234", "12345678901 "}},
        {3, {"123456", "123456789", "1234567x"}},
        {4, {"", "abc", "A_B", most + 'A', "\xC3\x87"}},
        {5, {"", "123", "12a4"}},
        {6, {"", "A", "123", "A12", "12B", "E12A", "AxB"}},
        {7, {"", "\xC3\xA9", most + 'A'}},
        {8, {"", "{", "abc", "{Dabc", "{B\xC3\xA9"}},
    };
    openTcp();
    for (const auto& [type, contents] : good)
        for (const std::string& content : contents)
            EXPECT_EQ(0, ImpressaoCodigoBarras(type, content.c_str(), 1, 1, 1))
                << type << ' ' << content;
    for (const auto& [type, contents] : bad)
        for (const std::string& content : contents)
            EXPECT_EQ(-65, ImpressaoCodigoBarras(type, content.c_str(), 1, 1, 1))
                << type << ' ' << content;
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

TEST_F(ExportTest, NothingIsWrittenWithoutALogFile)
{
    openTcp();
    DataFolder other(DataFolder::Log::Off);
    EXPECT_EQ(4, ImpressaoTexto("abc\n", 0, 0, 0));
    EXPECT_EQ("", other.read("log_q7.txt"));
    EXPECT_EQ(std::vector<std::string>(), data.takeLog());
}

TEST_F(ExportTest, TheVersionIsANewTextAtEachCall)
{
    const char* first = GetVersaoDLL();
    EXPECT_STREQ("01.01.00", first);
    EXPECT_STREQ("01.01.00", GetVersaoDLL());
    EXPECT_NE(first, GetVersaoDLL());
}

} // namespace
