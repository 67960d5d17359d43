#include "bitmap.h"

#include <algorithm>

namespace virtual_printer
{

Bitmap::Bitmap(int widthDots, int heightDots)
    : width_(std::max(widthDots, 0)),
      height_(std::max(heightDots, 0)),
      bytesPerRow_((static_cast<std::size_t>(width_) + 7) / 8),
      bits_(bytesPerRow_ * static_cast<std::size_t>(height_))
{
}

void Bitmap::fill(int x, int y, int widthDots, int heightDots, bool black)
{
    const int left = std::max(x, 0);
    const int right = std::min(x + widthDots, width_);
    if (left >= right) {
        return;
    }
    const std::uint8_t leftMask = static_cast<std::uint8_t>(0xFFU >> (left % 8));
    const std::uint8_t rightMask = static_cast<std::uint8_t>(0xFF00U >> ((right - 1) % 8 + 1));
    const auto apply = [black](std::uint8_t& byte, std::uint8_t mask) {
        byte = static_cast<std::uint8_t>(black ? byte | mask : byte & ~mask);
    };
    for (int row = std::max(y, 0); row < std::min(y + heightDots, height_); ++row) {
        std::uint8_t* first = bits_.data() + byteOf(left, row);
        std::uint8_t* last = bits_.data() + byteOf(right - 1, row);
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
    Bitmap cut(width_, std::min(heightDots, height_));
    std::copy_n(bits_.begin(), cut.bits_.size(), cut.bits_.begin());
    return cut;
}

bool Bitmap::isBlank() const
{
    return std::all_of(bits_.begin(), bits_.end(), [](std::uint8_t byte) { return byte == 0; });
}

} // namespace virtual_printer
