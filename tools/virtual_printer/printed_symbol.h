// What barcode, QR code and image commands put on paper.
#pragma once

#include "device.h"
#include "settings.h"

#include <map>

namespace virtual_printer
{

/** Stored graphics by their two-character key. */
using Graphics = std::map<std::string, Bitmap>;

/** A symbol to print, or why there is none. */
struct PrintedSymbol {
    Bitmap dots;
    Message caption; // what stands for it in the receipt's text
    Message problem; // empty when the symbol can be printed
};

/** A barcode with its text above, below or both. roomDots: the width there is for it. */
PrintedSymbol barcodeOf(const Command& command, const Settings& settings, const Model& model,
                        Glyphs& glyphs, int roomDots);

/** The QR code of any of the three commands that print one. Empty when an argument is out of range:
 *  such a command is ignored. */
std::optional<PrintedSymbol> qrCodeOf(const Command& command, const Settings& settings,
                                      int roomDots);

/** A stored graphic, enlarged as told. Empty when a factor is out of range. */
std::optional<PrintedSymbol> graphicOf(const Command& command, const Graphics& graphics);

/** A raster image, in strips: one alone could be longer than any other line. Empty when its scale is
 *  out of range. */
std::vector<PrintedSymbol> rasterOf(const Command& command, int roomDots);

} // namespace virtual_printer
