#include "table_glyphs.h"

#include <algorithm>

namespace virtual_printer
{

const Bitmap& TableGlyphs::glyph(char16_t character, Font font)
{
    const auto [drawn, isNew] = m_drawn.try_emplace({character, font});
    Bitmap& dots = drawn->second;
    if (!isNew) {
        return dots;
    }
    const Cell cell = cellOf(font);
    dots = Bitmap(cell.widthDots, cell.heightDots);
    const Entry* end = table + tableSize;
    const Entry* entry =
        std::lower_bound(table, end, character, [](const Entry& candidate, char16_t wanted) {
            return candidate.character < wanted;
        });
    if (entry == end || entry->character != character) {
        return dots;
    }
    const std::uint16_t* rows = font == Font::A ? entry->fontA : entry->fontB;
    for (int y = 0; y < cell.heightDots; ++y) {
        for (int x = 0; x < cell.widthDots; ++x) {
            dots.set(x, y, (rows[y] & (0x8000U >> static_cast<unsigned>(x))) != 0);
        }
    }
    return dots;
}

} // namespace virtual_printer
