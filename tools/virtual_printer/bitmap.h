// Dots on paper: one bit each, set where the paper is black.
#pragma once

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

    int width() const { return m_width; }
    int height() const { return m_height; }
    bool contains(int x, int y) const { return x >= 0 && y >= 0 && x < m_width && y < m_height; }
    /** Outside the bitmap everything is white. */
    bool at(int x, int y) const
    {
        return contains(x, y) && (m_bits[byteOf(x, y)] & maskOf(x)) != 0;
    }
    /** Dots outside the bitmap are dropped. */
    void set(int x, int y, bool black = true)
    {
        if (contains(x, y)) {
            std::uint8_t& byte = m_bits[byteOf(x, y)];
            byte = static_cast<std::uint8_t>(black ? byte | maskOf(x) : byte & ~maskOf(x));
        }
    }
    void fill(int x, int y, int widthDots, int heightDots, bool black = true);
    /** Blackens what is black in the source, each of its dots widthFactor by heightFactor large. */
    void draw(const Bitmap& source, int x, int y, int widthFactor = 1, int heightFactor = 1);
    bool isBlank() const;
    /** Its first rows, as many as there are. */
    Bitmap top(int heightDots) const;

    /** A row's bytes, the leftmost dot in the highest bit of the first. */
    const std::uint8_t* row(int y) const
    {
        return m_bits.data() + static_cast<std::size_t>(y) * m_bytesPerRow;
    }
    std::size_t bytesPerRow() const { return m_bytesPerRow; }

private:
    std::size_t byteOf(int x, int y) const
    {
        return static_cast<std::size_t>(y) * m_bytesPerRow + static_cast<std::size_t>(x) / 8;
    }
    static std::uint8_t maskOf(int x) { return static_cast<std::uint8_t>(0x80U >> (x % 8)); }

    int m_width = 0;
    int m_height = 0;
    std::size_t m_bytesPerRow = 0;
    std::vector<std::uint8_t> m_bits;
};

} // namespace virtual_printer
