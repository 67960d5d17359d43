#include "text_line.h"

#include "code_table.h"

#include <algorithm>

namespace virtual_printer
{

void TextLine::add(char16_t character, const Style& style, int x)
{
    m_characters.push_back({character, style, x});
}

Bitmap TextLine::dots(Glyphs& glyphs, int stripWidthDots, int leftDots) const
{
    int height = 0;
    for (const Character& character : m_characters) {
        height = std::max(height, character.style.heightDots());
    }
    Bitmap strip(stripWidthDots, height);
    for (const Character& character : m_characters) {
        draw(strip, glyphs.glyph(character.code, character.style.font), character.style,
             leftDots + character.x);
    }
    return strip;
}

void TextLine::draw(Bitmap& strip, const Bitmap& shape, const Style& style, int x)
{
    const Cell cell = cellOf(style.font);
    const bool bold = style.emphasised || style.doubleStrike;
    const int y = strip.height() - style.heightDots();
    for (int row = 0; row < cell.heightDots; ++row) {
        // A row of a cell fits into two bytes, its leftmost dot in the highest bit.
        unsigned ink = shape.height() > row
                           ? static_cast<unsigned>(shape.row(row)[0] << 8) | shape.row(row)[1]
                           : 0;
        ink = bold ? ink | (ink >> 1U) : ink;
        ink = style.reverse ? ~ink : ink;
        for (int column = 0; column < cell.widthDots; ++column) {
            if ((ink & (0x8000U >> static_cast<unsigned>(column))) != 0) {
                strip.fill(x + column * style.widthFactor, y + row * style.heightFactor,
                           style.widthFactor, style.heightFactor);
            }
        }
    }
    if (!style.reverse) {
        strip.fill(x, strip.height() - style.underlineDots, style.widthDots(), style.underlineDots);
    }
}

std::string TextLine::text(int leftDots) const
{
    std::string read;
    int end = -leftDots;
    for (const Character& character : m_characters) {
        const int gap = (character.x - end) / cellOf(character.style.font).widthDots;
        read.append(static_cast<std::size_t>(std::max(gap, 0)), ' ');
        appendUtf8(read, character.code);
        end = character.x + character.style.widthDots();
    }
    return read;
}

} // namespace virtual_printer
