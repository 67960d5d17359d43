/** \file bitmap.h
 *  Dots on paper: one bit each, set where the paper is black.
 */
#ifndef Q7_VIRTUAL_PRINTER_BITMAP_H
#define Q7_VIRTUAL_PRINTER_BITMAP_H

#include <cstdint>
#include <vector>

namespace virtual_printer
{

class Bitmap
{
public:
    Bitmap() = default;
    /** All white. Negative sizes count as 0. */
    Bitmap(int widthDots, int heightDots);

    [[nodiscard]] int width() const { return width_; }
    [[nodiscard]] int height() const { return height_; }
    [[nodiscard]] bool contains(int x, int y) const
    {
        return x >= 0 && y >= 0 && x < width_ && y < height_;
    }
    /** Outside the bitmap everything is white. */
    [[nodiscard]] bool at(int x, int y) const
    {
        return contains(x, y) && (bits_[byteOf(x, y)] & maskOf(x)) != 0;
    }
    /** Dots outside the bitmap are dropped. */
    void set(int x, int y, bool black = true)
    {
        if (contains(x, y)) {
            std::uint8_t& byte = bits_[byteOf(x, y)];
            byte = static_cast<std::uint8_t>(black ? byte | maskOf(x) : byte & ~maskOf(x));
        }
    }
    void fill(int x, int y, int widthDots, int heightDots, bool black = true);
    /** Blackens what is black in the source, each of its dots widthFactor by heightFactor large. */
    void draw(const Bitmap& source, int x, int y, int widthFactor = 1, int heightFactor = 1);
    [[nodiscard]] bool isBlank() const;
    /** Its first rows, as many as there are. */
    [[nodiscard]] Bitmap top(int heightDots) const;

    /** A row's bytes, the leftmost dot in the highest bit of the first. */
    [[nodiscard]] const std::uint8_t* row(int y) const
    {
        return bits_.data() + static_cast<std::size_t>(y) * bytesPerRow_;
    }
    [[nodiscard]] std::size_t bytesPerRow() const { return bytesPerRow_; }

private:
    [[nodiscard]] std::size_t byteOf(int x, int y) const
    {
        return static_cast<std::size_t>(y) * bytesPerRow_ + static_cast<std::size_t>(x) / 8;
    }
    static std::uint8_t maskOf(int x) { return static_cast<std::uint8_t>(0x80U >> (x % 8)); }

    int width_ = 0;
    int height_ = 0;
    std::size_t bytesPerRow_ = 0;
    std::vector<std::uint8_t> bits_;
};

} // namespace virtual_printer

#endif
