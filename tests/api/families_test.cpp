// The English and the Prt family: what they send and answer, where they refuse, what they log.

#include "export_fixture.h"

#include <algorithm>
#include <functional>

using namespace q7test;
using namespace std::string_literals;

namespace
{

using Lines = std::vector<std::string>;

int something;
void* const h = &something; // a handle, which nobody looks at

// ---------------------------------------------------------------- every operation

enum Order { GuardedFirst, LogsFirst };

using Calls = std::vector<std::function<int()>>;

struct Operation {
    const char* name;
    Calls calls; // that do the same
    std::string bytes;
    int result;
    std::string logged = {}; // the first line of a call
    Order order = GuardedFirst;
};

#define CALL(call) [] { return call; }
#define ONE(call) #call, Calls({CALL(call)})
#define BOTH(call) #call, Calls({CALL(call), CALL(Prt##call)})

const std::string ean13 = hex("1D 68 50  1D 77 03  1D 48 02  1D 6B 43 0D") + "7891000315507";
const std::string text = hex("1B 40  1B 61 01  1B 45 01  1D 21 11  1B 74 10  E9 0A");
const std::string qrCode =
    hex("1D 28 6B 03 00 31 43 05  1D 28 6B 03 00 31 45 31  1D 28 6B 05 00 31 50 30") + "AB" +
    hex("1D 28 6B 03 00 31 51 30  0A");
const std::string stateQueries = hex("1D 61 00 10 04 02  1D 61 00 10 04 04  1D 61 00 10 04 14");

const Operation operations[] = {
    {BOTH(PrinterDestroy(h)), "", 0},
    {BOTH(PrinterInitialize(h)), hex("1B 40"), 0, "InicializaImpressora. PARAMETROS:"},
    {BOTH(PrintText(h, "é\n", 1, 8, 17)), text, 2, "PrintText - Parametros:é\n,1,8,17"},
    {ONE(PrintTextS(h, "é\n")), hex("C3 A9 0A"), 3, "PrintTextS - Parametros:é\n", LogsFirst},
    {ONE(PrintTextS(h, nullptr)), "", -44, "PrintTextS - Parametros:", LogsFirst},
    {ONE(SetAlign(h, 0)), "", -44},
    {ONE(SetAlign(h, 3)), "", -41},
    {ONE(SetAlign(h, -1)), "", -41},
    {ONE(PrtSetTextPosition(h, 2)), hex("1B 61 02"), 1},
    {ONE(SetTextBold(h, 0)), hex("1B 45 00"), 0, "SetTextBold- Parametros:0", LogsFirst},
    {BOTH(SetTextBold(h, 1)), hex("1B 45 01"), 0, "SetTextBold- Parametros:1", LogsFirst},
    {ONE(SetTextBold(h, 2)), "", -42, "SetTextBold- Parametros:2", LogsFirst},
    {ONE(SetTextBold(h, -1)), "", -42, "SetTextBold- Parametros:-1", LogsFirst},
    {ONE(SetTextFont(h, 0)), hex("1B 21 00"), 0, "SetTextFont- Parametros:0", LogsFirst},
    {BOTH(SetTextFont(h, 1)), hex("1B 21 01"), 0, "SetTextFont- Parametros:1", LogsFirst},
    {ONE(SetTextFont(h, 2)), "", -42, "SetTextFont- Parametros:2", LogsFirst},
    {ONE(SetTextFont(h, -1)), "", -42, "SetTextFont- Parametros:-1", LogsFirst},
    {ONE(SetTextLineSpace(256)), "", -43, "EspaçamentoEntreLinhas. PARAMETROS:256", LogsFirst},
    {BOTH(PrintBarCode(h, 2, "7891000315507", 3, 80, 2)), ean13, 0,
     "ImpressaoCodigoBarras. PARAMETROS:2,7891000315507,80,3,2"},
    {ONE(PrintBarCode(h, 73, "{BAb", 1, 0, 1)), "", -61,
     "ImpressaoCodigoBarras. PARAMETROS:8,{BAb,0,1,1"},
    {ONE(PrintBarCode(h, 65, "12345678901", 1, 0, 1)), "", -61,
     "ImpressaoCodigoBarras. PARAMETROS:0,12345678901,0,1,1"},
    {BOTH(PrintSymbol(h, 9, "AB", 2, 5)), qrCode, 0, "ImpressaoQRCode. PARAMETROS:AB,5,2",
     LogsFirst},
    {ONE(PrintNVImage(h, 0xE7, 0x31)), "", -131, "ImprimeImagemMemoria. PARAMETROS:ç1,0",
     LogsFirst},
    {BOTH(FeedLine(h, 2)), hex("0A 0A"), 0, "AvancaPapel. PARAMETROS:2"},
    {BOTH(CutPaper(h, 1)), hex("0A  1D 56 00"), 0, "Corte. PARAMETROS:1"},
    {BOTH(OpenDrawer(h, 1, 50, 60)), hex("1B 70 31 32 3C"), 0, "AbreGaveta. PARAMETROS:1,50,60"},
    {ONE(OpenCashDrawer(h, 2, 0, 0)), "", -121, "AbreGaveta. PARAMETROS:2,0,0"},
    {ONE(GetPrinterState(h, nullptr)), stateQueries, 0, "StatusImpressora. PARAMETROS:5"},
    {ONE(PrtCheckPrinterState(h, nullptr)), stateQueries, 0, "StatusImpressora. PARAMETROS:5"},
    {BOTH(GetDrawerState(h, nullptr, 1)), "", 0, "StatusImpressora. PARAMETROS:1"},
    {ONE(GetCashDrawerState(h, nullptr, 1)), "", 0, "StatusImpressora. PARAMETROS:1"},
    {BOTH(SelectPageMode(h)), hex("1B 4C"), 0, "ModoPagina. PARAMETROS:"},
    {BOTH(SelectStandardMode(h)), hex("1B 53"), 0},
    {BOTH(SelectPrintDirectionInPageMode(h, 2)), hex("1B 54 02"), 0,
     "DirecaoImpressao. PARAMETROS:2"},
    {BOTH(SetPrintAreaInPageMode(h, 1, 2, 512, 3)), hex("1B 57 01 00 02 00 00 02 03 00"), 0,
     "DefineAreaImpressao. PARAMETROS:1,2,512,3"},
    {ONE(SetAbSolutePrintPosition(h, 300)), hex("1B 24 2C 01"), 0,
     "PosicaoImpressaoHorizontal. PARAMETROS:300"},
    {BOTH(SetAbsoluteVerticalPrintPositionInPageMode(h, 300)), hex("1D 24 2C 01"), 0,
     "PosicaoImpressaoVertical. PARAMETROS:300"},
    {BOTH(PrintDataInPageMode(h)), hex("1B 0C"), 0, "ImprimeModoPagina. PARAMETROS:"},
    {BOTH(SetPrintAndReturnStandardMode(h)), hex("0C"), 0, "ImprimeMPeRetornaPadrao. PARAMETROS:"},
    {ONE(CancelPrintDataInPageMode(h)), hex("18"), 0, "LimpaBufferModoPagina. PARAMETROS:"},
    {ONE(PrtCancelPrintDataInPageMode(h)), hex("1B"), 0},
};

class Families : public ExportTest, public testing::WithParamInterface<Operation>
{
};
INSTANTIATE_TEST_SUITE_P(Operation, Families, testing::ValuesIn(operations));

TEST_P(Families, RefuseSendAnswerAndLog)
{
    const Operation& row = GetParam();
    for (const auto& call : row.calls) {
        EXPECT_EQ(-4, call()) << row.name;
        EXPECT_EQ(row.order == LogsFirst ? Lines{"FUNCAO " + row.logged} : Lines(), data.takeLog());
    }
    openTcp();
    for (const auto& call : row.calls) {
        const std::size_t before = farEnd->latest().bytes.size();
        data.takeLog();
        EXPECT_EQ(row.result, call()) << row.name;
        const Lines log = data.takeLog();
        const std::size_t end = before + row.bytes.size();
        EXPECT_EQ(end, farEnd->waitForBytes(end).size()); // no later call pushes them
        EXPECT_TRUE(sameBytes(row.bytes, takeSent()));
        const auto isCall = [](const std::string& line) { return line.rfind("FUNCAO ", 0) == 0; };
        const auto first = std::find_if(log.begin(), log.end(), isCall);
        EXPECT_EQ(row.logged, first == log.end() ? "" : first->substr(7));
    }
}

// ---------------------------------------------------------------- port

#define OPENED(arguments) "FUNCAO AbreConexaoImpressora. PARAMETROS:" arguments

TEST_F(ExportTest, PortTextsOpenWhatTheyName)
{
    constexpr int whatever = 1; // the machine's own ports decide
    const struct {
        const char* text;
        int result;
        std::string opened; // what is logged; empty when no open is tried
    } rows[] = {
        {"COM77,9600", -12, OPENED("2,VANTA,COM77,9600")},
        {"na com77_9600_8", -12, OPENED("2,VANTA,NA COM77,9600")},
        {"COM77,", -11, OPENED("2,VANTA,COM77,0")},
        {"COM77", -2, ""},
        {"NET,127.0.0.1,65537", -31, OPENED("3,VANTA,127.0.0.1,65537")},
        {"Ethernet_127.0.0.1_65537", -31, OPENED("3,VANTA,127.0.0.1,65537")},
        {"NET,127.0.0.1", whatever, OPENED("3,VANTA,127.0.0.1,9100")},
        {"NET", -2, ""},
        {"USB", whatever, OPENED("1,VANTA,,0")},
        {"uma usb", whatever, OPENED("1,VANTA,,0")},
        {"USB,porta,7", whatever, OPENED("1,VANTA,PORTA,7")},
        {"LPT1,COM77,9600", -2, ""},
        {nullptr, -2, ""},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.text != nullptr ? row.text : "no text");
        const auto check = [&](int result) {
            const Lines log = data.takeLog();
            EXPECT_EQ(row.opened, log.empty() ? "" : log.front());
            EXPECT_EQ(row.result, row.result == whatever ? whatever : result);
            FechaConexaoImpressora();
            data.takeLog();
        };
        EXPECT_EQ(0, PrtPrinterCreator(h, "Vanta"));
        check(PortOpen(h, row.text));
        EXPECT_EQ(0, PrinterCreator(h, nullptr));
        PrinterCreatorS(h, "Vanta");
        check(PrtPortOpen(h, row.text));
    }
}

TEST_F(ExportTest, PortsOpenAndCloseInBothFamilies)
{
    EXPECT_EQ(-4, PortClose(h));
    EXPECT_EQ(Lines(), data.takeLog());
    EXPECT_EQ(-4, PrtPortClose(h)); // has no guard
    EXPECT_EQ(Lines{"FUNCAO FechaConexaoImpressora. PARAMETROS:"}, data.takeLog());

    const TcpPrinter network;
    const std::string port = "net,127.0.0.1," + std::to_string(network.port());
    PrinterCreator(h, "Vanta");
    EXPECT_EQ(0, PortOpen(h, port.c_str()));
    EXPECT_EQ(0, PortClose(h));
    EXPECT_EQ(0, PrtPortOpen(h, port.c_str()));
    EXPECT_EQ(0, PrinterDestroy(h)); // leaves it open
    EXPECT_EQ(0, PrtPortClose(h));
    EXPECT_EQ(-4, PrinterDestroy(h));
}

// ---------------------------------------------------------------- log

TEST_F(ExportTest, TextIsLoggedUnderBothNames)
{
    openTcp();
    SetTextLineSpace(30);
    data.takeLog();
    EXPECT_EQ(2, PrintText(h, "é\n", 0, 0, 0));
    EXPECT_EQ(logOf({"PrintText - Parametros:é\n,0,0,0",
                     "ImpressaoTexto. PARAMETROS:\uFFFD\n,0,0,0", "> 1B 33", "> 1E", "> 1B 74",
                     "> 10", "> E9 0A", "ImpressaoTexto. RETORNO:2", "PrintText - Retorno:2"}),
              data.takeLog());
}

// An unknown model name passes behind a success only, which tells what the last result was.
TEST_F(ExportTest, TheFontAloneLeavesTheLastResult)
{
    const TcpPrinter network;
    const auto openAfter = [&](auto operation) {
        EXPECT_EQ(0, AbreConexaoImpressora(3, "VANTA", "127.0.0.1", network.port()));
        operation(h, 1);
        return AbreConexaoImpressora(3, "?", "127.0.0.1", 65537);
    };
    EXPECT_EQ(-31, openAfter(SetTextFont));
    EXPECT_EQ(-3, openAfter(SetTextBold));
}

// ---------------------------------------------------------------- state

constexpr int unchanged = 77;

TEST_F(ExportTest, PrinterStatesAreThoseOfTheInterface)
{
    const std::pair<int, int> statusAndState[] = {
        {0, 0}, {2, 2}, {4, 4}, {6, 6}, {12, 1}, {14, 5}, {1, unchanged}, {16, unchanged},
    };
    for (const auto& [status, expected] : statusAndState) {
        PrinterScript script;
        script.state.drawerOpen = (status & 1) != 0; // asked for over the serial line alone
        script.state.coverOpen = (status & 2) != 0;
        script.state.paperNearEnd = (status & 4) != 0;
        script.state.paperOut = (status & 8) != 0;
        script.state.sensorSignalled = (status & 16) != 0; // asked for over the network alone
        (status & 16) != 0 ? openTcp(script) : openSerial(script);
        ASSERT_EQ(status, StatusImpressora(5));
        for (const auto& ask : {GetPrinterState, PrtCheckPrinterState}) {
            int state = unchanged;
            EXPECT_EQ(expected == unchanged ? -126 : 0, ask(h, &state)) << status;
            EXPECT_EQ(expected, state) << status;
        }
        FechaConexaoImpressora();
    }
}

TEST_F(ExportTest, DrawerStateFollowsThePolarity)
{
    openSerial();
    for (const bool isOpen : {false, true}) {
        farEnd->change([=](PrinterScript& script) { script.state.drawerOpen = isOpen; });
        for (const auto& ask : {GetDrawerState, GetCashDrawerState, PrtGetDrawerState})
            for (const int polarity : {0, 1}) {
                int state = unchanged;
                EXPECT_EQ(0, ask(h, &state, polarity));
                EXPECT_EQ(isOpen ? polarity : 1 - polarity, state);
            }
    }

    farEnd->change([](PrinterScript& script) { script.silent = true; });
    int state = unchanged;
    EXPECT_EQ(0, GetDrawerState(h, &state, 1));
    EXPECT_EQ(-126, GetPrinterState(h, &state));
    EXPECT_EQ(unchanged, state);
    EXPECT_EQ(0, DefineNVImage(1, 2, 3, 4));
}

} // namespace
