// Programs of every kind that hold the library: they hear nothing from it and are not harmed.

#include "bytes.h"
#include "fake_printer.h"
#include "program.h"
#include "temporary_folder.h"

#include <gtest/gtest.h>

using namespace q7test;

namespace
{

class Host : public testing::Test
{
protected:
    void expectSilence(const char* program)
    {
        const ProgramResult result =
            runProgram({program, std::to_string(printer.port()),
                        std::to_string(closingPrinter.port()), terminal.serialPath()});
        EXPECT_EQ("", result.output);
        EXPECT_EQ(0, result.exitCode) << "line of host_sequence.cpp";
    }

    DataFolder data{DataFolder::Log::Off};
    TcpPrinter printer;
    TcpPrinter closingPrinter{faultyAt(PrinterScript::Fault::Close, 500)};
    PtyPrinter terminal;
};

TEST_F(Host, WithoutQtHearsNothing)
{
    expectSilence(Q7_HOST_PLAIN);
}

TEST_F(Host, WithAQtEventLoopHearsNothing)
{
    expectSilence(Q7_HOST_QT);
}

TEST_F(Host, MayUnloadTheLibrary)
{
    const ProgramResult result =
        runProgram({Q7_HOST_LOADER, Q7_LIBRARY, std::to_string(printer.port())});
    EXPECT_EQ("", result.output);
    EXPECT_EQ(0, result.exitCode);
}

// The system gives the numbers of closed streams to what is opened next.
TEST_F(Host, WithoutStandardStreamsPrintsNothingElse)
{
    EXPECT_EQ(0, runProgram({"/bin/sh", "-c", R"(exec "$0" talk "$1" <&- >&- 2>&-)", Q7_HOST_PLAIN,
                             std::to_string(printer.port())})
                     .exitCode);
    EXPECT_TRUE(sameBytes(hex("1D 49 43  1B 40 1B 74 10") + "abc\n", printer.waitForClose()));
}

TEST_F(Host, LoadReadsTheSitesLayoutAndIsLogged)
{
    const std::string loaded = "INFO Biblioteca carregada 01.01.00";
    data.write("log_q7.txt", "");
    // Called without arguments the host does nothing itself.
    runProgram({Q7_HOST_PLAIN});
    EXPECT_EQ(std::vector<std::string>{loaded}, data.takeLog());
    data.write("q7_fiscal.ini", "[nfce]\nleiaute=7.0\n");
    runProgram({Q7_HOST_PLAIN});
    EXPECT_EQ(
        (std::vector<std::string>{"INFO q7_fiscal.ini: nfce/leiaute IGNORADO: 7.0",
                                  "INFO q7_fiscal.ini: nfce/leiaute EM VIGOR: original", loaded}),
        data.takeLog());
}

TEST_F(Host, KeepsItsMemory)
{
#ifdef Q7_SANITIZE
    GTEST_SKIP() << "freed memory stays in the sanitizer's quarantine";
#endif
    const ProgramResult result =
        runProgram({Q7_HOST_PLAIN, "memory", std::to_string(printer.port())});
    EXPECT_LE(result.exitCode, 128) << "KiB grown from receipt 100 to 2000";
    EXPECT_GE(result.exitCode, 0);
}

} // namespace
