#include "picture.h"

#include "code_table.h"
#include "phrases.h"
#include "png_image.h"

#include <algorithm>
#include <stdexcept>

namespace virtual_printer
{
namespace
{

enum Ink : std::uint8_t { paperInk, dotInk, groundInk, noteInk };

constexpr int groundDots = 12;                                  // around the paper
constexpr int unprintableDots = Picture::leftDots - groundDots; // at each side of the paper
constexpr int endDots = Picture::topDots - groundDots; // above the first, below the last row
constexpr int noteColumns = 24;
constexpr int toothDots = 8;
constexpr int dotsPerMetre = 8000;
constexpr std::size_t mostNotes = 500; // of one part; more could not be read

/** The image and the shapes on it. */
class Canvas
{
public:
    /** groundOpacity: of what is no paper. */
    Canvas(int width, int height, std::uint8_t groundOpacity)
        : m_image{width,
                  height,
                  {{{255, 255, 255}, {0, 0, 0}, {205, 209, 214, groundOpacity}, {150, 30, 20}}},
                  std::vector<std::uint8_t>(static_cast<std::size_t>(width) *
                                                static_cast<std::size_t>(height),
                                            groundInk)}
    {
    }

    void fill(int x, int y, int width, int height, Ink ink)
    {
        const int right = std::min(x + width, m_image.width);
        for (int row = y; row < std::min(y + height, m_image.height); ++row) {
            std::fill(line(row) + x, line(row) + std::max(x, right), ink);
        }
    }

    void dots(const std::uint8_t* bits, int count, int x, int y)
    {
        std::uint8_t* at = line(y) + x;
        for (int first = 0; first < count; first += 8) {
            const unsigned byte = bits[first / 8];
            for (int dot = 0; byte != 0 && dot < 8; ++dot) {
                if ((byte & (0x80U >> static_cast<unsigned>(dot))) != 0) {
                    at[first + dot] = dotInk; // the dots behind the last one are never set
                }
            }
        }
    }

    void glyph(const Bitmap& shape, int x, int y)
    {
        for (int row = 0; row < shape.height() && y + row < m_image.height; ++row) {
            for (int column = 0; column < shape.width(); ++column) {
                if (shape.at(column, row)) {
                    line(y + row)[x + column] = noteInk;
                }
            }
        }
    }

    const IndexedImage& image() const { return m_image; }

private:
    std::uint8_t* line(int y)
    {
        return m_image.pixels.data() +
               static_cast<std::size_t>(y) * static_cast<std::size_t>(m_image.width);
    }

    IndexedImage m_image;
};

struct MarginLine {
    int y;
    std::u16string text;
};

/** The notes beside the rows that they belong to, or below the note before. */
std::vector<MarginLine> marginLines(const std::vector<Picture::Note>& notes)
{
    const int height = cellOf(Font::B).heightDots;
    std::vector<MarginLine> lines;
    int free = groundDots;
    for (const Picture::Note& note : notes) {
        free = std::max(free, Picture::topDots + note.row - height / 2);
        const std::u16string text = fromUtf8(note.text);
        std::u16string_view rest = text;
        while (!rest.empty()) {
            std::size_t end = rest.size();
            if (end > noteColumns) {
                const std::size_t blank = rest.rfind(u' ', noteColumns);
                end = blank == std::u16string_view::npos || blank == 0 ? noteColumns : blank;
            }
            lines.push_back({free, std::u16string(rest.substr(0, end))});
            rest.remove_prefix(end);
            rest.remove_prefix(std::min(rest.find_first_not_of(u' '), rest.size()));
            free += height;
        }
    }
    return lines;
}

void cutTeeth(Canvas& canvas, int left, int bottom, int width)
{
    for (int row = 0; row < toothDots; ++row) {
        for (int x = 0; x < width; x += 2 * toothDots) {
            canvas.fill(left + x + toothDots - row - 1, bottom - toothDots + row, 2 * row + 2, 1,
                        groundInk);
        }
    }
}

} // namespace

Picture::Picture(int widthDots, Glyphs& glyphs, Frame frame, Language language, Taker taker)
    : m_widthDots(widthDots),
      m_glyphs(glyphs),
      m_frame(frame),
      m_language(language),
      m_taker(std::move(taker))
{
}

void Picture::print(const Bitmap& dots, int advanceDots)
{
    if (dots.isBlank()) {
        return feed(advanceDots);
    }
    commitBlank();
    if (m_rowCount + dots.height() > partRows) {
        finishPart(phrases::goesOn, false);
    }
    if (dots.width() != m_widthDots) {
        throw std::logic_error("a line has the width of the paper");
    }
    m_rows.insert(m_rows.end(), dots.row(0),
                  dots.row(0) + dots.bytesPerRow() * static_cast<std::size_t>(dots.height()));
    m_rowCount += dots.height();
    feed(advanceDots - dots.height());
}

void Picture::note(std::string_view text)
{
    if (m_notes.size() < mostNotes) {
        commitBlank();
        m_notes.push_back({m_rowCount, std::string(text)});
    }
}

void Picture::end(End how)
{
    const bool cut = how == End::Cut;
    finishPart(cut ? phrases::cutCommand : phrases::endOfTheConnection, cut);
}

std::string Picture::preview() const
{
    Picture now(*this);
    now.commitBlank();
    return now.drawn(false);
}

void Picture::commitBlank()
{
    const auto kept = static_cast<int>(std::min<long long>(m_blankRows, longestBlankRows));
    if (m_blankRows > kept) {
        const auto leftOutCm = (m_blankRows - kept) / (dotsPerMetre / 100);
        m_notes.push_back(
            {m_rowCount + kept / 2,
             Message(phrases::blankPaperLeftOut, {std::to_string(leftOutCm)}).in(m_language)});
    }
    m_blankRows = 0;
    m_rowCount += kept;
    m_rows.resize(static_cast<std::size_t>(m_rowCount) *
                  ((static_cast<std::size_t>(m_widthDots) + 7) / 8));
}

void Picture::finishPart(const Message& ending, bool cut)
{
    commitBlank();
    m_notes.push_back({m_rowCount, ending.in(m_language)});
    m_taker(drawn(cut));
    m_rows.clear();
    m_rowCount = 0;
    m_notes.clear();
}

std::string Picture::drawn(bool cut) const
{
    const bool alone = m_frame == Frame::PaperAlone;
    const int around = alone ? 0 : groundDots;
    const int paperWidth = m_widthDots + 2 * unprintableDots;
    const int paperHeight = m_rowCount + 2 * endDots;
    const Cell cell = cellOf(Font::B);
    const int notesX = around + paperWidth + around;
    const std::vector<MarginLine> margin = alone ? std::vector<MarginLine>() : marginLines(m_notes);
    const int notesEnd = margin.empty() ? 0 : margin.back().y + cell.heightDots;
    Canvas canvas(alone ? paperWidth : notesX + noteColumns * cell.widthDots + around,
                  std::max(around + paperHeight, notesEnd) + around, alone ? 0 : 255);
    canvas.fill(around, around, paperWidth, paperHeight, paperInk);
    if (cut) {
        cutTeeth(canvas, around, around + paperHeight, paperWidth);
    }
    const std::size_t bytesPerRow = (static_cast<std::size_t>(m_widthDots) + 7) / 8;
    for (int row = 0; row < m_rowCount; ++row) {
        canvas.dots(m_rows.data() + static_cast<std::size_t>(row) * bytesPerRow, m_widthDots,
                    around + unprintableDots, around + endDots + row);
    }
    for (const auto& [y, text] : margin) {
        int x = notesX;
        for (const char16_t c : text) {
            canvas.glyph(m_glyphs.glyph(c, Font::B), x, y);
            x += cell.widthDots;
        }
    }
    return encodePng(canvas.image(), dotsPerMetre);
}

} // namespace virtual_printer
