// The three exports that print a document, over an open link, for documents of all sorts. The last
// byte of an input chooses the export, the one before it the options.

#include "fake_printer.h"
#include "q7_impressora.h"
#include "sample_receipts.h"

#include <cstdlib>

using namespace q7test;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    static const TcpPrinter printer({}, TcpPrinter::Keep::Nothing);
    static const bool isOpen = openPatientlyOn(printer) == 0;
    if (!isOpen)
        std::abort();
    if (size < 2)
        return 0;
    SampleReceipt receipt = sampleReceipts()[data[size - 1] % sampleReceipts().size()];
    receipt.options = data[size - 2] | (data[size - 1] & 0x0C) << 7;
    const int result = receipt.print(std::string(reinterpret_cast<const char*>(data), size - 2));
    // Nothing that a document says ends the link, and a printed one is a success.
    if (result > 0 || FeedLine(nullptr, 1) != 0)
        std::abort();
    return 0;
}
