#include "bitmap.h"

#include <algorithm>

namespace virtual_printer
{

Bitmap::Bitmap(int widthDots, int heightDots)
    : m_width(std::max(widthDots, 0)),
      m_height(std::max(heightDots, 0)),
      m_bytesPerRow((static_cast<std::size_t>(m_width) + 7) / 8),
      m_bits(m_bytesPerRow * static_cast<std::size_t>(m_height))
{
}

void Bitmap::fill(int x, int y, int widthDots, int heightDots, bool black)
{
    const int left = std::max(x, 0);
    const int right = std::min(x + widthDots, m_width);
    if (left >= right) {
        return;
    }
    const std::uint8_t leftMask = static_cast<std::uint8_t>(0xFFU >> (left % 8));
    const std::uint8_t rightMask = static_cast<std::uint8_t>(0xFF00U >> ((right - 1) % 8 + 1));
    const auto apply = [black](std::uint8_t& byte, std::uint8_t mask) {
        byte = static_cast<std::uint8_t>(black ? byte | mask : byte & ~mask);
    };
    for (int row = std::max(y, 0); row < std::min(y + heightDots, m_height); ++row) {
        std::uint8_t* first = m_bits.data() + byteOf(left, row);
        std::uint8_t* last = m_bits.data() + byteOf(right - 1, row);
        if (first == last) {
            apply(*first, leftMask & rightMask);
            continue;
        }
        apply(*first, leftMask);
        std::fill(first + 1, last, static_cast<std::uint8_t>(black ? 0xFF : 0));
        apply(*last, rightMask);
    }
}

void Bitmap::draw(const Bitmap& source, int x, int y, int widthFactor, int heightFactor)
{
    for (int row = 0; row < source.height(); ++row) {
        for (int column = 0; column < source.width(); ++column) {
            if (source.at(column, row)) {
                fill(x + column * widthFactor, y + row * heightFactor, widthFactor, heightFactor);
            }
        }
    }
}

Bitmap Bitmap::top(int heightDots) const
{
    Bitmap cut(m_width, std::min(heightDots, m_height));
    std::copy_n(m_bits.begin(), cut.m_bits.size(), cut.m_bits.begin());
    return cut;
}

bool Bitmap::isBlank() const
{
    return std::all_of(m_bits.begin(), m_bits.end(), [](std::uint8_t byte) { return byte == 0; });
}

} // namespace virtual_printer
