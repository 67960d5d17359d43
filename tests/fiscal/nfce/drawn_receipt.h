// What a printer makes of the bytes it got: text, symbols and what it could not print.
#pragma once

#include <string>
#include <vector>

namespace q7test
{

struct DrawnReceipt {
    std::string text;                 // UTF-8, a line of the paper on each line
    std::vector<std::string> symbols; // as an independent reader reads them: "QR-Code:text"
    std::vector<std::string> losses;  // what was cut off, ignored or not printed
};

/** The receipts between the cuts. dotPixels: pixels of a dot for the reader of symbols. */
std::vector<DrawnReceipt> drawn(const std::string& bytes, const std::string& model,
                                int dotPixels = 1);

/** Modules of a side of the smallest QR code of level M that has this text. */
int smallestQrSide(const std::string& text);

} // namespace q7test
