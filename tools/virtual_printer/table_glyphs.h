// The printer's fonts, from a table that the build makes (glyph_table/).
#pragma once

#include "glyphs.h"

#include <map>
#include <utility>

namespace virtual_printer
{

class TableGlyphs : public Glyphs
{
public:
    const Bitmap& glyph(char16_t character, Font font) override;

private:
    /** A row of a cell each, the leftmost dot in the highest bit. */
    struct Entry {
        char16_t character;
        std::uint16_t fontA[cellOf(Font::A).heightDots];
        std::uint16_t fontB[cellOf(Font::B).heightDots];
    };
    static const Entry table[]; // by character, ascending
    static const std::size_t tableSize;

    std::map<std::pair<char16_t, Font>, Bitmap> m_drawn;
};

} // namespace virtual_printer
