// Draws the characters of the printer's code tables from a monospaced outline font, and writes their
// dots as C++: q7_glyph_table FONT OUTPUT.
#include "code_table.h"
#include "glyphs.h"

#include <ft2build.h>
#include FT_FREETYPE_H

#include <array>
#include <fstream>
#include <iostream>
#include <set>
#include <stdexcept>
#include <vector>

namespace
{

using namespace virtual_printer;

/** Size at which a character of DejaVu Sans Mono is as wide as the cell, and its base line. */
struct Fit {
    unsigned pixelSize;
    int baseLine;
};
constexpr Fit fitOf(Font font)
{
    return font == Font::A ? Fit{20, 19} : Fit{15, 14};
}

void check(FT_Error error, const std::string& what)
{
    if (error != 0) {
        throw std::runtime_error(what + ": FreeType's error " + std::to_string(error));
    }
}

class OutlineFont
{
public:
    explicit OutlineFont(const std::string& path)
    {
        check(FT_Init_FreeType(&m_library), "FreeType");
        check(FT_New_Face(m_library, path.c_str(), 0, &m_face), path);
    }
    ~OutlineFont()
    {
        FT_Done_Face(m_face);
        FT_Done_FreeType(m_library);
    }
    OutlineFont(const OutlineFont&) = delete;
    OutlineFont& operator=(const OutlineFont&) = delete;

    bool has(char16_t character) const { return FT_Get_Char_Index(m_face, character) != 0; }

    /** A row of the cell each, the leftmost dot in the highest bit of 16. */
    std::vector<unsigned> draw(char16_t character, Font font)
    {
        const Cell cell = cellOf(font);
        const Fit fit = fitOf(font);
        check(FT_Set_Pixel_Sizes(m_face, 0, fit.pixelSize), "size");
        check(FT_Load_Char(m_face, character, FT_LOAD_RENDER | FT_LOAD_TARGET_MONO), "character");
        FT_GlyphSlotRec_* const slot = m_face->glyph;
        const FT_Bitmap& shape = slot->bitmap;
        std::vector<unsigned> rows(static_cast<std::size_t>(cell.heightDots));
        for (int y = 0; y < static_cast<int>(shape.rows); ++y) {
            for (int x = 0; x < static_cast<int>(shape.width); ++x) {
                const int column = slot->bitmap_left + x;
                const int row = fit.baseLine - slot->bitmap_top + y;
                const bool black = (shape.buffer[y * shape.pitch + x / 8] << x % 8 & 0x80) != 0;
                if (black && column >= 0 && column < cell.widthDots && row >= 0 &&
                    row < cell.heightDots) {
                    rows[static_cast<std::size_t>(row)] |= 0x8000U >> static_cast<unsigned>(column);
                }
            }
        }
        return rows;
    }

private:
    FT_Library m_library = nullptr;
    FT_Face m_face = nullptr;
};

std::set<char16_t> charactersOfThePrinter()
{
    std::set<char16_t> characters;
    for (unsigned table = 0; table < 256; ++table) {
        for (unsigned byte = 0x20; hasCodeTable(table) && byte < 0x100; ++byte) {
            characters.insert(characterOf(table, static_cast<unsigned char>(byte)));
        }
    }
    return characters;
}

void writeRows(std::ostream& out, const std::vector<unsigned>& rows)
{
    out << " {";
    for (const unsigned row : rows) {
        out << row << ',';
    }
    out << '}';
}

void writeTable(OutlineFont& font, std::ostream& out)
{
    out << "// Made by q7_glyph_table.\n"
           "#include \"table_glyphs.h\"\n\n"
           "namespace virtual_printer\n{\n\n"
           "const TableGlyphs::Entry TableGlyphs::table[] = {\n";
    constexpr char16_t softHyphen = 0xAD; // shows only where a word is broken, never here
    for (const char16_t character : charactersOfThePrinter()) {
        if (character != softHyphen && font.has(character)) {
            out << "    {" << static_cast<unsigned>(character) << ',';
            writeRows(out, font.draw(character, Font::A));
            out << ',';
            writeRows(out, font.draw(character, Font::B));
            out << "},\n";
        }
    }
    out << "};\n"
           "const std::size_t TableGlyphs::tableSize = sizeof table / sizeof table[0];\n\n"
           "} // namespace virtual_printer\n";
}

} // namespace

int main(int argc, char** argv)
{
    if (argc != 3) {
        std::cerr << "usage: q7_glyph_table FONT OUTPUT\n";
        return 2;
    }
    try {
        OutlineFont font(argv[1]);
        std::ofstream out(argv[2]);
        writeTable(font, out);
        out.close();
        if (!out) {
            throw std::runtime_error(std::string("cannot write ") + argv[2]);
        }
        return 0;
    } catch (const std::exception& error) {
        std::cerr << "q7_glyph_table: " << error.what() << '\n';
        return 1;
    }
}
