#include "picture.h"

#include "files.h"
#include "png_image.h"

#include <algorithm>
#include <stdexcept>

namespace virtual_printer
{
namespace
{

enum Colour : std::uint8_t { paperColour, inkColour, groundColour, noteColour };

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
    Canvas(int width, int height)
        : m_image{width,
                  height,
                  {{{255, 255, 255}, {0, 0, 0}, {205, 209, 214}, {150, 30, 20}}},
                  std::vector<std::uint8_t>(static_cast<std::size_t>(width) *
                                                static_cast<std::size_t>(height),
                                            groundColour)}
    {
    }

    void fill(int x, int y, int width, int height, Colour colour)
    {
        const int right = std::min(x + width, m_image.width);
        for (int row = y; row < std::min(y + height, m_image.height); ++row) {
            std::fill(line(row) + x, line(row) + std::max(x, right), colour);
        }
    }

    void dots(const std::uint8_t* bits, int count, int x, int y)
    {
        std::uint8_t* at = line(y) + x;
        for (int first = 0; first < count; first += 8) {
            const unsigned byte = bits[first / 8];
            for (int dot = 0; byte != 0 && dot < 8; ++dot) {
                if ((byte & (0x80U >> static_cast<unsigned>(dot))) != 0) {
                    at[first + dot] = inkColour; // the dots behind the last one are never set
                }
            }
        }
    }

    void glyph(const Bitmap& shape, int x, int y)
    {
        for (int row = 0; row < shape.height() && y + row < m_image.height; ++row) {
            for (int column = 0; column < shape.width(); ++column) {
                if (shape.at(column, row)) {
                    line(y + row)[x + column] = noteColour;
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
    std::string text;
};

/** The notes beside the rows that they belong to, or below the note before. */
std::vector<MarginLine> marginLines(const std::vector<Picture::Note>& notes)
{
    const int height = cellOf(Font::B).heightDots;
    std::vector<MarginLine> lines;
    int free = groundDots;
    for (const Picture::Note& note : notes) {
        free = std::max(free, Picture::topDots + note.row - height / 2);
        std::string_view rest = note.text;
        while (!rest.empty()) {
            std::size_t end = rest.size();
            if (end > noteColumns) {
                const std::size_t blank = rest.rfind(' ', noteColumns);
                end = blank == std::string_view::npos || blank == 0 ? noteColumns : blank;
            }
            lines.push_back({free, std::string(rest.substr(0, end))});
            rest.remove_prefix(end);
            rest.remove_prefix(std::min(rest.find_first_not_of(' '), rest.size()));
            free += height;
        }
    }
    return lines;
}

} // namespace

Picture::Picture(std::string stem, int widthDots, Glyphs& glyphs)
    : m_stem(std::move(stem)), m_widthDots(widthDots), m_glyphs(glyphs)
{
}

void Picture::print(const Bitmap& dots, int advanceDots)
{
    if (dots.isBlank()) {
        return feed(advanceDots);
    }
    commitBlank();
    if (m_rowCount + dots.height() > partRows) {
        writePart("goes on in the next part", false);
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

const std::vector<std::string>& Picture::end(End how)
{
    writePart(how == End::Cut ? "cut" : "end of the connection", how == End::Cut);
    return m_paths;
}

void Picture::commitBlank()
{
    const auto kept = static_cast<int>(std::min<long long>(m_blankRows, longestBlankRows));
    if (m_blankRows > kept) {
        m_notes.push_back(
            {m_rowCount + kept / 2, std::to_string((m_blankRows - kept) / (dotsPerMetre / 100)) +
                                        " cm of blank paper left out"});
    }
    m_blankRows = 0;
    m_rowCount += kept;
    m_rows.resize(static_cast<std::size_t>(m_rowCount) *
                  ((static_cast<std::size_t>(m_widthDots) + 7) / 8));
}

void Picture::writePart(std::string_view ending, bool cut)
{
    commitBlank();
    m_notes.push_back({m_rowCount, std::string(ending)});

    const int paperWidth = m_widthDots + 2 * unprintableDots;
    const int paperHeight = m_rowCount + 2 * endDots;
    const Cell cell = cellOf(Font::B);
    const int notesX = groundDots + paperWidth + groundDots;
    const std::vector<MarginLine> margin = marginLines(m_notes);
    Canvas canvas(notesX + noteColumns * cell.widthDots + groundDots,
                  std::max(groundDots + paperHeight, margin.back().y + cell.heightDots) +
                      groundDots);
    canvas.fill(groundDots, groundDots, paperWidth, paperHeight, paperColour);
    if (cut) {
        for (int row = 0; row < toothDots; ++row) { // the teeth that the cutter leaves
            for (int x = 0; x < paperWidth; x += 2 * toothDots) {
                canvas.fill(groundDots + x + toothDots - row - 1,
                            groundDots + paperHeight - toothDots + row, 2 * row + 2, 1,
                            groundColour);
            }
        }
    }
    const std::size_t bytesPerRow = (static_cast<std::size_t>(m_widthDots) + 7) / 8;
    for (int row = 0; row < m_rowCount; ++row) {
        canvas.dots(m_rows.data() + static_cast<std::size_t>(row) * bytesPerRow, m_widthDots,
                    leftDots, topDots + row);
    }

    for (const auto& [y, text] : margin) {
        int x = notesX;
        for (const char c : text) {
            canvas.glyph(m_glyphs.glyph(static_cast<unsigned char>(c), Font::B), x, y);
            x += cell.widthDots;
        }
    }

    m_paths.push_back(m_stem + (m_paths.empty() ? "" : "-" + std::to_string(m_paths.size() + 1)) +
                      ".png");
    std::ofstream file = openForWriting(m_paths.back());
    file << encodePng(canvas.image(), dotsPerMetre);
    closeWhole(file, m_paths.back());
    m_rows.clear();
    m_rowCount = 0;
    m_notes.clear();
}

} // namespace virtual_printer
