// Any bytes as the printer's answer to whatever it is asked.

#include "fake_printer.h"
#include "q7_impressora.h"
#include "sample_receipts.h"

#include <cstdlib>
#include <cstring>

using namespace q7test;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    static TcpPrinter printer({}, TcpPrinter::Keep::Nothing);
    const auto answerWith = [](const std::string& reply) {
        printer.change([&](PrinterScript& script) { script.anyAnswer = reply; });
    };
    if (size < 2)
        return 0;
    const std::string reply(reinterpret_cast<const char*>(data) + 1, size - 1);
    if (data[0] >= 0xC0) { // the model's name
        answerWith(reply);
        const int result = openOn(printer);
        if (result != Q7_OK && result != Q7_ERR_MODEL && result != Q7_ERR_UNKNOWN_PRINTER)
            std::abort();
        FechaConexaoImpressora();
        return 0;
    }
    answerWith({});
    if (openPatientlyOn(printer) != 0)
        std::abort();
    answerWith(reply);
    const int kind = data[0] % 16;
    if (data[0] < 0x40) {
        char* const name = IdImpressora(kind % 7);
        if (std::strlen(name) > 3 * reply.size() + 5)
            std::abort();
        std::free(name);
    } else if (data[0] < 0x80) {
        const int question = kind % 7 - 1;
        if (StatusImpressora(question) > 9 && question != 5) // 5 is several in one
            std::abort();
    } else {
        std::string buffer(65536, '\0'); // the size given is no bound
        auto length = static_cast<unsigned>(kind);
        if (DirectIO("\x10\x04\x01", 3, buffer.data(), &length) == 0 &&
            (length > reply.size() || buffer.compare(0, length, reply, 0, length) != 0))
            std::abort();
    }
    FechaConexaoImpressora();
    return 0;
}
