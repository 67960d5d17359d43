// Barcodes and QR codes as dots.
#pragma once

#include "bitmap.h"
#include "message.h"

#include <string>
#include <string_view>

namespace virtual_printer
{

/** An encoded symbol, or why there is none. */
struct Symbol {
    Bitmap dots;
    std::string text; // human-readable interpretation of a barcode, ASCII
    Message problem;  // empty when the symbol could be made
};

/** A barcode without its text.
 *  symbology: as in GS k, 0..6 or 65..73: UPC-A, UPC-E, EAN-13, EAN-8, CODE39, ITF, CODABAR, CODE93,
 *  CODE128. Code 128 data carry their set selectors ("{B") unless picksCode128Set.
 *  moduleDots: width of the narrowest bar, 1..6. heightDots: 1..255.
 *  longest: no symbol is made that is wider, in dots. */
Symbol encodeBarcode(unsigned symbology, std::string_view data, bool picksCode128Set,
                     int moduleDots, int heightDots, int longest);

/** The name of the symbology; empty for one this printer does not draw. */
std::string_view barcodeName(unsigned symbology);

enum class QrLevel { L = 1, M, Q, H };

/** A QR code of model 2, as small as its data and level allow.
 *  moduleDots: 1..16. longest: no symbol is made that is wider, in dots. */
Symbol encodeQr(std::string_view data, QrLevel level, int moduleDots, int longest);

} // namespace virtual_printer
