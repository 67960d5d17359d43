// Loads the library, prints and unloads it, again and again:
//
//   q7_load_cycles LIBRARY COUNT
//
// Neither memory nor anything else may grow from life to life.

#include "fake_printer.h"
#include "own_resources.h"

#include <cstdio>
#include <cstdlib>
#include <dlfcn.h>
#include <malloc.h>

using namespace q7test;

int main(int argc, char** argv)
{
    if (argc != 3)
        return 2;
    const long count = std::atol(argv[2]);
    constexpr long first = 50; // what others set up at first use is there then
    const TcpPrinter printer({}, TcpPrinter::Keep::Nothing);
    OwnResources resources;
    std::size_t bytes = 0;
    for (long cycle = 0; cycle < first + count; ++cycle) {
        void* const library = ::dlopen(argv[1], RTLD_NOW);
        if (library == nullptr) {
            std::printf("%s\n", ::dlerror());
            return 2;
        }
        int (*open)(int, const char*, const char*, int) = nullptr;
        int (*print)(const char*, int, int, int) = nullptr;
        int (*close)() = nullptr;
        *reinterpret_cast<void**>(&open) = ::dlsym(library, "AbreConexaoImpressora");
        *reinterpret_cast<void**>(&print) = ::dlsym(library, "ImpressaoTexto");
        *reinterpret_cast<void**>(&close) = ::dlsym(library, "FechaConexaoImpressora");
        if (open(3, "VANTA", "127.0.0.1", printer.port()) != 0 || print("abc\n", 0, 0, 0) != 4 ||
            close() != 0 || ::dlclose(library) != 0 ||
            ::dlopen(argv[1], RTLD_NOW | RTLD_NOLOAD) != nullptr) {
            std::printf("FINDING: cycle %ld\n", cycle);
            return 1;
        }
        if (cycle == first) {
            resources = OwnResources();
            bytes = ::mallinfo2().uordblks;
        }
    }
    const auto grown = static_cast<long>(::mallinfo2().uordblks) - static_cast<long>(bytes);
    std::printf("%ld lives: %ld bytes each\n", count, grown / count);
    // The printer's own buffers come and go.
    const bool isFlat = grown < 64 * count && resources.comeBack();
    if (!isFlat)
        std::printf("FINDING: not flat\n");
    return isFlat ? 0 : 1;
}
