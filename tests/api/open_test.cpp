// Opening, the model check and closing.

#include "deaf_port.h"
#include "export_fixture.h"

#include <algorithm>
#include <cstring>
#include <dlfcn.h>
#include <netdb.h>
#include <strings.h>
#include <unistd.h>

using namespace q7test;
using std::chrono::milliseconds;

// The system's resolver, with two names of its own: one that finds IPv6 first and one that never
// answers. The library finds this function before the C library's.
extern "C" int getaddrinfo(const char* name, const char* service, const addrinfo* hints,
                           addrinfo** found)
{
    static const auto real =
        reinterpret_cast<decltype(&getaddrinfo)>(dlsym(RTLD_NEXT, "getaddrinfo"));
    if (strcasecmp(name, "muda.teste") == 0)
        pause();
    if (strcasecmp(name, "dupla.teste") != 0)
        return real(name, service, hints, found);
    if (const int error = real("::1", service, hints, found))
        return error;
    return real("127.0.0.1", service, hints, &(*found)->ai_next);
}

namespace
{

int openAt(const char* host, int port, const char* model = "VANTA")
{
    return AbreConexaoImpressora(3, model, host, port);
}

const std::string zero(1, '\0');

constexpr int refusingPort = 1; // of 127.0.0.1: nobody listens there

class Open : public ExportTest
{
};

TEST_F(Open, LogsCapitalsAndAsksForTheModel)
{
    TcpPrinter printer;
    const std::string port = std::to_string(printer.port());
    EXPECT_EQ(0, openAt("localhost", printer.port(), "vanta"));
    EXPECT_EQ(logOf({"AbreConexaoImpressora. PARAMETROS:3,VANTA,LOCALHOST," + port,
                     "AbreConexaoImpressora. RETORNO:0"}),
              data.takeLog());
    EXPECT_EQ(0, FechaConexaoImpressora());
    EXPECT_EQ(logOf({"FechaConexaoImpressora. PARAMETROS:", "FechaConexaoImpressora. RETORNO:0"}),
              data.takeLog());
    EXPECT_EQ(-4, FechaConexaoImpressora());
    EXPECT_EQ(logOf({"FechaConexaoImpressora. PARAMETROS:"}), data.takeLog());
    EXPECT_TRUE(sameBytes(hex("1D 49 43"), printer.waitForClose()));
}

TEST_F(Open, RefusesWhatItCannotOpen)
{
    const struct {
        int kind;
        const char* model;
        const char* address;
        int number;
        int result;
    } rows[] = {
        {0, "VANTA", "x", 1, -2},
        {4, "VANTA", "x", 1, -2},
        {2, "VANTA", "x", 14400, -11},
        {2, "XPTO", "x", 14400, -3}, // the model comes first
        {2, nullptr, nullptr, 9600, -3},
        {2, "VANTA", nullptr, 9600, -12},
        {2, "VANTA", "/dev/pts/no such", 9600, -12},
        {1, "VANTA", "", 0, -21},
        {3, "VANTA", nullptr, 9100, 2}, // host not found
        {3, "VANTA", "127.0.0.1", 65537, -31},
    };
    for (const auto& row : rows) {
        EXPECT_EQ(row.result, AbreConexaoImpressora(row.kind, row.model, row.address, row.number));
        const bool isLogged = data.takeLog().back() ==
                              "FUNCAO AbreConexaoImpressora. RETORNO:" + std::to_string(row.result);
        EXPECT_EQ(row.result != -11, isLogged) << row.result;
        EXPECT_EQ(-4, Corte(0));
        EXPECT_EQ(-4, FechaConexaoImpressora());
        data.takeLog();
    }
}

// Applications open with names of their own: these pass while the result before is 0.
TEST_F(Open, AnUnknownModelPassesBehindASuccessOnly)
{
    PrinterScript script;
    script.model = "SORBE";
    script.answers[hex("1D 49 43")] = "_SORBE XPTO" + zero;
    TcpPrinter printer(script);
    const auto open = [&](const char* model) { return openOn(printer, model); };

    EXPECT_EQ(0, open("XPTO")); // the first call of the process
    EXPECT_EQ(0, open("SORBE"));
    EXPECT_EQ(1, ImpressaoTexto("x", 0, 0, 0)); // leaves a count
    EXPECT_EQ(-3, open("XPTO"));
    EXPECT_EQ(0, open("SORBE"));
    EXPECT_EQ(0, FechaConexaoImpressora()); // leaves 0
    EXPECT_EQ(0, open("xpto"));
    // ... and keep the model of before: the QR code is in SORBE's dialect.
    printer.waitForBytes(3);
    EXPECT_EQ(0, ImpressaoQRCode("A", 1, 1));
    EXPECT_TRUE(sameBytes(hex("1D 49 43  0A  1D 6B 51 00 02 0A 01 04 00 41  0A"),
                          printer.waitForBytes(15)));

    EXPECT_EQ(-3, open("VANTA")); // the printer is another: a failure
    EXPECT_EQ(-3, open("XPTO"));
    EXPECT_EQ(0, openAt("127.0.0.1", refusingPort)); // refused reads as success
    EXPECT_EQ(0, open("XPTO"));
}

TEST_F(Open, SerialPortsAreFoundInWhateverCase)
{
    PtyPrinter printer;
    const std::string number = printer.serialPath().substr(printer.serialPath().rfind('/') + 1);
    for (const auto& [name, speed] : {std::pair("/dev/pts/" + number, 300),
                                      {"/DEV/PTS/" + number, 38400},
                                      {"PTS/" + number, 115200}}) {
        EXPECT_EQ(0, AbreConexaoImpressora(2, "VANTA", name.c_str(), speed)) << name;
        EXPECT_EQ(0, FechaConexaoImpressora());
    }
}

TEST_F(Open, ARefusedConnectionReadsAsSuccess)
{
    EXPECT_EQ(0, openAt("127.0.0.1", 65536)); // the last number: tries port 0
    data.takeLog();
    EXPECT_EQ(0, openAt("127.0.0.1", refusingPort));
    EXPECT_EQ(logOf({"AbreConexaoImpressora. PARAMETROS:3,VANTA,127.0.0.1,1", "Connection refused",
                     "AbreConexaoImpressora. RETORNO:0"}),
              data.takeLog());
    EXPECT_EQ(-4, ImpressaoTexto("x", 0, 0, 0));
    EXPECT_EQ(-4, StatusImpressora(2));
    EXPECT_STREQ("-4", IdImpressora(7));
    EXPECT_EQ(-4, DirectIO("x", 1, nullptr, nullptr));
    EXPECT_EQ(-4, FechaConexaoImpressora());
    openTcp();
    EXPECT_EQ(1, ImpressaoTexto("x", 0, 0, 0));
}

TEST_F(Open, TimesOutWithError5)
{
    const int port = deafPort();
    for (const char* host : {"127.0.0.1", "muda.teste"}) {
        int result = 0;
        const auto took = durationOf([&] { result = openAt(host, port); });
        EXPECT_EQ(5, result);
        EXPECT_GT(took, milliseconds(1900));
        EXPECT_LT(took, milliseconds(3000));
        const auto log = data.takeLog();
        ASSERT_EQ(3U, log.size());
        EXPECT_EQ("FUNCAO Socket operation timed out", log[1]);
        EXPECT_EQ("FUNCAO AbreConexaoImpressora. RETORNO:5", log[2]);
    }
    EXPECT_EQ(-4, Corte(0));
}

TEST_F(Open, FindsAnIpv4PrinterBehindAnIpv6Address)
{
    TcpPrinter printer;
    EXPECT_EQ(0, openAt("dupla.teste", printer.port()));
    EXPECT_EQ(0, Corte(0));
}

TEST_F(Open, ASecondOpenAbandonsTheFirst)
{
    TcpPrinter first;
    EXPECT_EQ(0, openOn(first));
    EXPECT_EQ(4, ImpressaoTexto("one\n", 0, 0, 0));
    openTcp();
    EXPECT_EQ(4, ImpressaoTexto("two\n", 0, 0, 0));
    EXPECT_TRUE(sameBytes(hex("1B 40 1B 74 10") + "two\n", takeSent()));
    EXPECT_EQ(0, FechaConexaoImpressora());
    EXPECT_NE("", farEnd->waitForClose());
    EXPECT_TRUE(sameBytes(hex("1D 49 43  1B 40 1B 74 10") + "one\n", first.waitForBytes(12)));
    EXPECT_FALSE(first.latest().ended);
}

TEST_F(Open, AFailedOpenClosesItsLinkAndForgetsTheEarlierOne)
{
    openTcp();
    PrinterScript script;
    script.model = "VESPA";
    TcpPrinter other(script);
    EXPECT_EQ(-3, openOn(other));
    EXPECT_TRUE(sameBytes(hex("1D 49 43"), other.waitForClose()));
    EXPECT_EQ(-4, Corte(0));
    EXPECT_EQ(-4, FechaConexaoImpressora());
}

struct ModelReply {
    const char* name;
    const char* model;
    std::string reply;
    int result;
    int delayMs = 0;
    int byteGapMs = 0;
};

class ModelCheck : public ExportTest, public testing::WithParamInterface<ModelReply>
{
};

TEST_P(ModelCheck, OnSerialAndTcp)
{
    const ModelReply& row = GetParam();
    const std::string query = std::string(row.model) == "TESMO" ? "~HI" : hex("1D 49 43");
    PrinterScript script;
    script.model = query == "~HI" ? "TESMO" : "VANTA";
    script.answers[query] = row.reply;
    script.lateMs = row.delayMs;
    script.byteGapMs = row.byteGapMs;
    for (const auto line : {FakePrinter::Line::Tcp, FakePrinter::Line::Serial}) {
        const FakePrinter printer(script, line);
        int result = 0;
        const auto took = durationOf([&] { result = openOn(printer, row.model); });
        EXPECT_EQ(row.result, result);
        EXPECT_LT(took, milliseconds(1500)); // 750 ms for the reply
        EXPECT_GE(took, milliseconds(std::min(700, row.delayMs + 5 * row.byteGapMs)));
        EXPECT_EQ(row.result == 0 ? 0 : -4, FechaConexaoImpressora());
        EXPECT_TRUE(sameBytes(query, printer.waitForClose()));
    }
}

const ModelReply modelReplies[] = {
    {"NamedInSmallLetters", "VANTA", "vanta" + zero, 0},
    {"WithoutZeroByte", "VANTA", "_VANTA", 0},
    {"Late", "VANTA", "_VANTA" + zero, 0, 400},
    {"TooLate", "VANTA", "_VANTA" + zero, -5, 1100},
    {"NoModel", "VANTA", "_XPTO" + zero, -5},
    {"OtherModel", "VANTA", "_VESPA" + zero, -3},
    {"NameBehindAZeroByte", "VANTA", zero + "VANTA" + zero, -5},
    {"LongerName", "RANZA", "_RANZAPRO" + zero, 0},
    {"ShorterName", "RANZAPRO", "_RANZA" + zero, -3},
    {"TwoNames", "VESPA", "VESPA,VANTA" + zero, 0},
    {"Tesmo", "TESMO", "\x02TESMO,V1.15,8,8192KB\x03\r\n", 0},
    {"TesmoByteByByte", "TESMO", "\x02TESMO,V1.15", 0, 0, 2},
    {"TesmoFirstFieldCounts", "TESMO", "\x02XPTO,TESMO\x03", -5},
    {"TesmoStartBytesAreDropped", "TESMO", "TE\x02SMO,1", 0},
};
INSTANTIATE_TEST_SUITE_P(Reply, ModelCheck, testing::ValuesIn(modelReplies),
                         [](const auto& row) { return row.param.name; });

} // namespace
