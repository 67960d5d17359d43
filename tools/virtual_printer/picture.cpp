#include "picture.h"

#include <QImage>
#include <QImageWriter>

#include <algorithm>
#include <stdexcept>

namespace virtual_printer
{
namespace
{

enum Colour : std::uint8_t { kPaper, kInk, kGround, kNote };

constexpr int kGroundDots = 12;                                    // around the paper
constexpr int kUnprintableDots = Picture::kLeftDots - kGroundDots; // at each side of the paper
constexpr int kEndDots = Picture::kTopDots - kGroundDots; // above the first, below the last row
constexpr int kNoteColumns = 24;
constexpr int kToothDots = 8;
constexpr int kDotsPerMetre = 8000;
constexpr std::size_t kMostNotes = 500; // of one part; more could not be read

/** The image and the shapes on it. */
class Canvas
{
public:
    Canvas(int width, int height) : image_(width, height, QImage::Format_Indexed8)
    {
        image_.setColorTable(
            {qRgb(255, 255, 255), qRgb(0, 0, 0), qRgb(205, 209, 214), qRgb(150, 30, 20)});
        image_.fill(kGround);
        image_.setDotsPerMeterX(kDotsPerMetre);
        image_.setDotsPerMeterY(kDotsPerMetre);
    }

    void fill(int x, int y, int width, int height, Colour colour)
    {
        const int right = std::min(x + width, image_.width());
        for (int row = y; row < std::min(y + height, image_.height()); ++row) {
            std::fill(image_.scanLine(row) + x, image_.scanLine(row) + std::max(x, right), colour);
        }
    }

    void dots(const std::uint8_t* bits, int count, int x, int y)
    {
        unsigned char* line = image_.scanLine(y) + x;
        for (int at = 0; at < count; at += 8) {
            const unsigned byte = bits[at / 8];
            for (int dot = 0; byte != 0 && dot < 8; ++dot) {
                if ((byte & (0x80U >> static_cast<unsigned>(dot))) != 0) {
                    line[at + dot] = kInk; // the dots behind the last one are never set
                }
            }
        }
    }

    void glyph(const Bitmap& shape, int x, int y)
    {
        for (int row = 0; row < shape.height() && y + row < image_.height(); ++row) {
            for (int column = 0; column < shape.width(); ++column) {
                if (shape.at(column, row)) {
                    image_.scanLine(y + row)[x + column] = kNote;
                }
            }
        }
    }

    void write(const std::string& path)
    {
        QImageWriter writer(QString::fromStdString(path), "png");
        writer.setQuality(60); // for PNG the effort: a long receipt is written twice as fast
        if (!writer.write(image_)) {
            throw std::runtime_error(path + ": " + writer.errorString().toStdString());
        }
    }

private:
    QImage image_;
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
    int free = kGroundDots;
    for (const Picture::Note& note : notes) {
        free = std::max(free, Picture::kTopDots + note.row - height / 2);
        std::string_view rest = note.text;
        while (!rest.empty()) {
            std::size_t end = rest.size();
            if (end > kNoteColumns) {
                const std::size_t blank = rest.rfind(' ', kNoteColumns);
                end = blank == std::string_view::npos || blank == 0 ? kNoteColumns : blank;
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
    : stem_(std::move(stem)), widthDots_(widthDots), glyphs_(glyphs)
{
}

void Picture::print(const Bitmap& dots, int advanceDots)
{
    if (dots.isBlank()) {
        return feed(advanceDots);
    }
    commitBlank();
    if (rowCount_ + dots.height() > kPartRows) {
        writePart("goes on in the next part", false);
    }
    if (dots.width() != widthDots_) {
        throw std::logic_error("a line has the width of the paper");
    }
    rows_.insert(rows_.end(), dots.row(0),
                 dots.row(0) + dots.bytesPerRow() * static_cast<std::size_t>(dots.height()));
    rowCount_ += dots.height();
    feed(advanceDots - dots.height());
}

void Picture::note(std::string_view text)
{
    if (notes_.size() < kMostNotes) {
        commitBlank();
        notes_.push_back({rowCount_, std::string(text)});
    }
}

const std::vector<std::string>& Picture::end(End how)
{
    writePart(how == End::Cut ? "cut" : "end of the connection", how == End::Cut);
    return paths_;
}

void Picture::commitBlank()
{
    const auto kept = static_cast<int>(std::min<long long>(blankRows_, kLongestBlankRows));
    if (blankRows_ > kept) {
        notes_.push_back(
            {rowCount_ + kept / 2, std::to_string((blankRows_ - kept) / (kDotsPerMetre / 100)) +
                                       " cm of blank paper left out"});
    }
    blankRows_ = 0;
    rowCount_ += kept;
    rows_.resize(static_cast<std::size_t>(rowCount_) *
                 ((static_cast<std::size_t>(widthDots_) + 7) / 8));
}

void Picture::writePart(std::string_view ending, bool cut)
{
    commitBlank();
    notes_.push_back({rowCount_, std::string(ending)});

    const int paperWidth = widthDots_ + 2 * kUnprintableDots;
    const int paperHeight = rowCount_ + 2 * kEndDots;
    const Cell cell = cellOf(Font::B);
    const int notesX = kGroundDots + paperWidth + kGroundDots;
    const std::vector<MarginLine> margin = marginLines(notes_);
    Canvas canvas(notesX + kNoteColumns * cell.widthDots + kGroundDots,
                  std::max(kGroundDots + paperHeight, margin.back().y + cell.heightDots) +
                      kGroundDots);
    canvas.fill(kGroundDots, kGroundDots, paperWidth, paperHeight, kPaper);
    if (cut) {
        for (int row = 0; row < kToothDots; ++row) { // the teeth that the cutter leaves
            for (int x = 0; x < paperWidth; x += 2 * kToothDots) {
                canvas.fill(kGroundDots + x + kToothDots - row - 1,
                            kGroundDots + paperHeight - kToothDots + row, 2 * row + 2, 1, kGround);
            }
        }
    }
    const std::size_t bytesPerRow = (static_cast<std::size_t>(widthDots_) + 7) / 8;
    for (int row = 0; row < rowCount_; ++row) {
        canvas.dots(rows_.data() + static_cast<std::size_t>(row) * bytesPerRow, widthDots_,
                    kLeftDots, kTopDots + row);
    }

    for (const auto& [y, text] : margin) {
        int x = notesX;
        for (const char c : text) {
            canvas.glyph(glyphs_.glyph(static_cast<unsigned char>(c), Font::B), x, y);
            x += cell.widthDots;
        }
    }

    paths_.push_back(stem_ + (paths_.empty() ? "" : "-" + std::to_string(paths_.size() + 1)) +
                     ".png");
    canvas.write(paths_.back());
    rows_.clear();
    rowCount_ = 0;
    notes_.clear();
}

} // namespace virtual_printer
