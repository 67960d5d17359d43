// A receipt as PNG files, dot for dot.
#pragma once

#include "glyphs.h"

#include <string>
#include <string_view>
#include <vector>

namespace virtual_printer
{

/** The picture shows the paper, its dots one pixel each, on a grey ground; right of it stand notes.
 *  However long the receipt, memory stays small: after partRows rows a part is written and the
 *  next begins, never in the middle of a line. */
class Picture
{
public:
    static constexpr int partRows = 16000;
    /** Longer stretches of blank paper are shown as long as this, with a note. */
    static constexpr int longestBlankRows = 1600;
    /** Place of the first dot of a part in its picture. */
    static constexpr int leftDots = 44;
    static constexpr int topDots = 36;

    enum class End { Cut, Connection };

    /** stem: path of the files without ".png"; the second part adds "-2", and so on.
     *  glyphs: must outlive the picture. */
    Picture(std::string stem, int widthDots, Glyphs& glyphs);

    void print(const Bitmap& dots, int advanceDots);
    void feed(int dots) { m_blankRows += dots; }
    void note(std::string_view text);
    /** Writes the last part. Returns the paths of all. Throws std::runtime_error when a part could
     *  not be written. */
    const std::vector<std::string>& end(End how);

    struct Note {
        int row; // of the part
        std::string text;
    };

private:
    void commitBlank();
    void writePart(std::string_view ending, bool cut);

    std::string m_stem;
    int m_widthDots;
    Glyphs& m_glyphs;
    std::vector<std::uint8_t> m_rows;
    int m_rowCount = 0;
    long long m_blankRows = 0; // below the last row, not yet kept
    std::vector<Note> m_notes;
    std::vector<std::string> m_paths;
};

} // namespace virtual_printer
