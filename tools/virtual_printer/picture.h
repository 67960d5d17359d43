// A receipt as PNG pictures, dot for dot.
#pragma once

#include "glyphs.h"
#include "message.h"

#include <functional>
#include <string>
#include <vector>

namespace virtual_printer
{

/** However long the receipt, memory stays small: after partRows rows a part is handed over and the
 *  next begins, never in the middle of a line. */
class Picture
{
public:
    static constexpr int partRows = 16000;
    /** Longer stretches of blank paper are shown as long as this, with a note. */
    static constexpr int longestBlankRows = 1600;
    /** Place of the first dot of a part in its picture WithNotes. */
    static constexpr int leftDots = 44;
    static constexpr int topDots = 36;

    /** The paper's dots are one pixel each. WithNotes: on a grey ground, notes right of it. */
    enum class Frame : bool { WithNotes, PaperAlone };
    enum class End { Cut, Connection };
    /** Takes the parts as they are ready: the content of a PNG file each. */
    using Taker = std::function<void(std::string png)>;

    /** glyphs: must outlive the picture. */
    Picture(int widthDots, Glyphs& glyphs, Frame frame, Language language, Taker taker);

    void print(const Bitmap& dots, int advanceDots);
    void feed(int dots) { m_blankRows += dots; }
    void note(std::string_view text);
    /** Hands over the last part. */
    void end(End how);
    /** The part at hand as it looks now. */
    std::string preview() const;

    struct Note {
        int row; // of the part
        std::string text;
    };

private:
    void commitBlank();
    void finishPart(const Message& ending, bool cut);
    std::string drawn(bool cut) const;

    int m_widthDots;
    Glyphs& m_glyphs;
    Frame m_frame;
    Language m_language;
    Taker m_taker;
    std::vector<std::uint8_t> m_rows;
    int m_rowCount = 0;
    long long m_blankRows = 0; // below the last row, not yet kept
    std::vector<Note> m_notes;
};

} // namespace virtual_printer
