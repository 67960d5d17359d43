// What commands set and a reset sets back: the style of text, its layout, the looks of symbols.
#pragma once

#include "command.h"
#include "glyphs.h"
#include "page.h"
#include "symbols.h"

#include <optional>

namespace virtual_printer
{

/** How characters look. */
struct Style {
    Font font = Font::A;
    bool emphasised = false;
    bool doubleStrike = false;
    bool reverse = false;
    int underlineDots = 0;
    int widthFactor = 1;
    int heightFactor = 1;

    int widthDots() const { return cellOf(font).widthDots * widthFactor; }
    int heightDots() const { return cellOf(font).heightDots * heightFactor; }
};

constexpr int usualLineSpacing = 30;

/** How a command was taken. */
enum class Taking { SetsNothing, Set, OutOfRange, UnknownCodeTable };

/** Lengths are in dots. The defaults hold at power on and after ESC @. */
struct Settings {
    explicit Settings(unsigned powerOnCodeTable) : codeTable(powerOnCodeTable) {}

    /** Takes a command that does nothing but set. An argument out of range leaves its setting as it
     *  was; an unknown code table is kept, its characters read as in PC437. */
    Taking take(const Command& command);

    Style style;
    unsigned codeTable;
    unsigned alignment = 0; // ESC a: 0 left, 1 centre, 2 right
    int lineSpacing = usualLineSpacing;
    int characterSpacing = 0;
    int leftMargin = 0;
    std::optional<int> printWidth;
    std::string tabColumns;
    int barcodeTextPosition = 0; // GS H: bit 0 above, bit 1 below
    Font barcodeTextFont = Font::A;
    int barcodeHeight = 162;
    int barcodeModule = 3;
    int qrModule = 3;
    QrLevel qrLevel = QrLevel::L;
    std::string qrData;
    int qrAltModule = 3;
    // Told in standard mode too, they count from the next ESC L on.
    std::optional<Page::Area> pageArea;
    Page::Direction pageDirection = Page::Direction::RightTopLeft;

private:
    Taking takeStyle(const Command& command);
    Taking takeLayout(const Command& command);
    Taking takeSymbol(const Command& command);
};

} // namespace virtual_printer
