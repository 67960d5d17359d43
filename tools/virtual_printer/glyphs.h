// The printer's two fonts.
#pragma once

#include "bitmap.h"

namespace virtual_printer
{

enum class Font : std::uint8_t { A, B };

struct Cell {
    int widthDots;
    int heightDots;
};
constexpr Cell cellOf(Font font)
{
    return font == Font::A ? Cell{12, 24} : Cell{9, 17};
}

/** Gives the dots of characters. */
class Glyphs
{
public:
    virtual ~Glyphs() = default;
    Glyphs() = default;
    Glyphs(const Glyphs&) = delete;
    Glyphs& operator=(const Glyphs&) = delete;

    /** The dots of one cell; blank for a character the font does not have. */
    virtual const Bitmap& glyph(char16_t character, Font font) = 0;
};

} // namespace virtual_printer
