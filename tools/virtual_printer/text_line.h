// A line of text between its first character and its printing.
#pragma once

#include "settings.h"

#include <vector>

namespace virtual_printer
{

class TextLine
{
public:
    bool empty() const { return m_characters.empty(); }
    /** Whether it has as many characters as are kept: moving back and forth could otherwise pile up
     *  any number. */
    bool isFull() const { return m_characters.size() >= 1024; }

    /** x: its left edge, in dots from the line's start. */
    void add(char16_t character, const Style& style, int x);
    void clear() { m_characters.clear(); }

    /** The line on a strip as high as its highest character; all stand on one base line.
     *  leftDots: where on the strip the line starts. */
    Bitmap dots(Glyphs& glyphs, int stripWidthDots, int leftDots) const;

    /** The same as UTF-8, gaps filled with blanks. */
    std::string text(int leftDots) const;

private:
    struct Character {
        char16_t code;
        Style style;
        int x;
    };
    static void draw(Bitmap& strip, const Bitmap& shape, const Style& style, int x);

    std::vector<Character> m_characters;
};

} // namespace virtual_printer
