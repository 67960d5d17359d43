// A program without Qt. Says nothing; the exit code tells: that of the sequence, and
//
//   talk PORT      0 when it printed, and wrote to the standard streams, all of which are closed
//   memory PORT    by how many KiB its memory grew, of which 254 stands for more and 255 for none told

#include "host_sequence.h"
#include "q7_impressora.h"

#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <sys/resource.h>
#include <unistd.h>

namespace
{

int talkWhilePrinting(int tcpPort)
{
    bool isWell = AbreConexaoImpressora(3, "VANTA", "127.0.0.1", tcpPort) == 0;
    for (int stream = 0; stream <= 2; ++stream)
        isWell = ::write(stream, "stray", 5) < 0 && isWell;
    isWell = ImpressaoTexto("abc\n", 0, 0, 0) == 4 && isWell;
    return FechaConexaoImpressora() == 0 && isWell ? 0 : 1;
}

/** At its most. */
long residentKib()
{
    rusage usage = {};
    ::getrusage(RUSAGE_SELF, &usage);
    return usage.ru_maxrss;
}

/** Prints the same receipt 2,000 times: the growth behind the first 100. */
int memoryGrowthKib(int tcpPort)
{
    long before = 0;
    bool isWell = AbreConexaoImpressora(3, "VANTA", "127.0.0.1", tcpPort) == 0;
    for (int receipt = 0; receipt < 2000 && isWell; ++receipt) {
        for (int line = 0; line < 20 && isWell; ++line)
            isWell =
                ImpressaoTexto("ARROZ TIPO 1 5KG        1 UN   24,90     24,90\n", 0, 0, 0) == 47;
        isWell = isWell && ImpressaoCodigoBarras(8, "{C0123456789", 80, 2, 2) == 0 &&
                 ImpressaoQRCode("https://exemplo.com.br", 4, 2) == 0 && StatusImpressora(2) == 4;
        if (receipt == 99)
            before = residentKib();
    }
    return isWell ? static_cast<int>(std::min(residentKib() - before, 254L)) : 255;
}

} // namespace

int main(int argc, char** argv)
{
    if (argc == 3)
        return (std::strcmp(argv[1], "memory") == 0 ? memoryGrowthKib
                                                    : talkWhilePrinting)(std::atoi(argv[2]));
    return argc == 4 ? runHostSequence({std::atoi(argv[1]), std::atoi(argv[2]), argv[3]}) : 255;
}
