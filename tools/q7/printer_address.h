// Which printer, as the command line names it: VANTA@net:192.168.0.10:9100.
#pragma once

#include "q7_impressora.h"

#include <string>
#include <string_view>

namespace CLI
{
class App;
}

namespace q7tool
{

struct PrinterAddress {
    Q7Connection kind = Q7_CONNECTION_TCP;
    std::string model; // in capitals
    std::string place; // host or serial port; empty for USB
    int number = 0;    // TCP port or bits per second; 0 for USB

    /** As it was written, complete: "VANTA@net:192.168.0.10:9100". */
    std::string text() const;
    /** In a sentence: "192.168.0.10, porta 9100". */
    std::string placeInWords() const;
};

/** Throws Failure that says what does not fit. */
PrinterAddress parsePrinterAddress(const std::string& text);

/** Adds --impressora to a command. text: receives what it is given. */
void addPrinterOption(CLI::App& command, std::string& text, bool required = true);

} // namespace q7tool
