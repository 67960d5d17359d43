// Apart from the printer: who only plays one has no library.
#include "fake_printer.h"
#include "q7_impressora.h"

#include <cstdio>

namespace q7test
{

int openOn(const FakePrinter& printer, const std::string& model)
{
    const std::string& serial = printer.serialPath();
    return serial.empty() ? AbreConexaoImpressora(3, model.c_str(), "127.0.0.1", printer.port())
                          : AbreConexaoImpressora(2, model.c_str(), serial.c_str(), 9600);
}

int openPatientlyOn(const FakePrinter& printer, const std::string& model)
{
    int result = openOn(printer, model);
    for (int attempt = 1; result != 0 && attempt < 3; ++attempt) {
        std::fprintf(stderr, "opening a %s gives %d\n", model.c_str(), result);
        result = openOn(printer, model);
    }
    return result;
}

} // namespace q7test
