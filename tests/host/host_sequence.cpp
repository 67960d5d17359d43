#include "host_sequence.h"

#include "q7_impressora.h"

#include <csignal>
#include <cstdlib>
#include <cstring>
#include <thread>

#define CHECK(condition)                                                                           \
    do {                                                                                           \
        if (!(condition))                                                                          \
            return __LINE__;                                                                       \
    } while (0)

#define PASS_ON(call)                                                                              \
    do {                                                                                           \
        const int line = (call);                                                                   \
        if (line != 0)                                                                             \
            return line;                                                                           \
    } while (0)

namespace
{

int openLink(int kind, const char* address, int number)
{
    CHECK(AbreConexaoImpressora(kind, "VANTA", address, number) == 0);
    return 0;
}

int printAndAsk()
{
    CHECK(ImpressaoTexto("abc\n", 1, 8, 17) == 4);
    CHECK(StatusImpressora(2) == 4);
    char* name = IdImpressora(4);
    CHECK(std::strcmp(name, "_VANTA") == 0);
    std::free(name);
    CHECK(Corte(2) == 0);
    return 0;
}

template <typename Step> int inAnotherThread(const Step& step)
{
    int failedLine = 0;
    std::thread([&] { failedLine = step(); }).join();
    return failedLine;
}

int useLink(int kind, const char* address, int number)
{
    PASS_ON(inAnotherThread([&] { return openLink(kind, address, number); }));
    PASS_ON(printAndAsk());
    PASS_ON(inAnotherThread(printAndAsk));
    CHECK(inAnotherThread(FechaConexaoImpressora) == 0);
    return 0;
}

} // namespace

int runHostSequence(const HostPrinters& printers)
{
    CHECK(AbreConexaoImpressora(3, "VANTA", "no such host.invalid", 9100) > 0);
    CHECK(AbreConexaoImpressora(2, "VANTA", "no such port", 9600) == -12);
    CHECK(AbreConexaoImpressora(1, "VANTA", "", 0) == -21);
    PASS_ON(useLink(3, "localhost", printers.tcpPort));
    PASS_ON(useLink(2, printers.terminal, 9600));

    // A printer that vanishes, in a program that a broken pipe would end.
    CHECK(std::signal(SIGPIPE, SIG_DFL) == SIG_DFL);
    PASS_ON(openLink(3, "127.0.0.1", printers.closingPort));
    while (ImpressaoTexto("abc\n", 0, 0, 0) == 4)
        ;
    CHECK(FechaConexaoImpressora() == -4);
    return 0;
}
