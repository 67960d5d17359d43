// The printer models: names, USB identifiers and layout values. Free of everything else, for
// programs that need no more than this.
#pragma once

#include <array>
#include <cstdint>

namespace q7
{

/** One row of the table. Widths in columns; -1 where the model is no receipt printer. */
struct PrinterModel {
    int id;                  // model number; the numbering skips 10
    const char* name;        // in capitals, as callers pass it and printers report it
    std::uint16_t vendorId;  // USB
    std::uint16_t productId; // USB
    int codeTable;           // ESC t n
    int qrOffsetLow;         // GS $ nL nH: where the NFC-e places its QR code in page mode
    int qrOffsetHigh;
    int width1; // columns of the normal font
    int width2; // columns of the small font, in which fiscal receipts are set
};

/** The models with rules of their own. */
enum ModelId : int {
    VoltaModel = 2,
    OrlaKModel = 3,
    SorbeModel = 7,
    DunelModel = 9,
};

// Placeholders: the makers' own identifiers are not known here, and a site enters its printer's in
// "q7_usb.ini". What holds is who shares with whom: three models one maker, three another, two a
// third, and ORLA-K and RANZA the same product as well.
constexpr std::uint16_t vendorOfVanta = 0x1A01;
constexpr std::uint16_t vendorOfVolta = 0x1A02;
constexpr std::uint16_t vendorOfSorbe = 0x1A03;
constexpr std::uint16_t vendorOfPinta = 0x1A04;
constexpr std::uint16_t vendorOfDunel = 0x1A05;
constexpr std::uint16_t vendorOfTesmo = 0x1A06;

using PrinterModels = std::array<PrinterModel, 11>;

// Constant, not built at start-up: the session is made while the library loads and reads it.
inline constexpr PrinterModels builtInModels = {{
    {0, "VANTA", vendorOfVanta, 0x0001, 16, 15, 0, 48, 64},
    {1, "VESPA", vendorOfVanta, 0x0002, 16, 15, 0, 48, 64},
    {VoltaModel, "VOLTA", vendorOfVolta, 0x0001, 16, 180, 1, 48, 64},
    {OrlaKModel, "ORLA-K", vendorOfVolta, 0x0002, 16, 150, 1, 42, 56},
    {4, "PINTA", vendorOfPinta, 0x0001, 16, 15, 0, 48, 64},
    {5, "RANZA", vendorOfVolta, 0x0002, 16, 15, 0, -1, -1},
    {6, "RANZAPRO", vendorOfVanta, 0x0003, 16, 15, 0, -1, -1},
    {SorbeModel, "SORBE", vendorOfSorbe, 0x0001, 16, 15, 0, 42, 56},
    {8, "SALVI", vendorOfSorbe, 0x0002, 16, 15, 0, 48, 64},
    {DunelModel, "DUNEL", vendorOfDunel, 0x0001, 16, 15, 0, 48, 64},
    {11, "TESMO", vendorOfTesmo, 0x0001, 16, 15, 0, -1, -1},
}};

} // namespace q7
