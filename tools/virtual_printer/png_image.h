// Pictures as PNG, a format that every system shows.
#pragma once

#include "bitmap.h"

#include <array>
#include <string>

namespace virtual_printer
{

struct Colour {
    std::uint8_t red;
    std::uint8_t green;
    std::uint8_t blue;
    std::uint8_t opacity = 255; // 0: not there
};

/** An image of four colours, a byte per pixel that is an index into them. */
struct IndexedImage {
    int width;
    int height;
    std::array<Colour, 4> colours;
    std::vector<std::uint8_t> pixels; // width by height, from the top
};

/** The image as the content of a PNG file; the same bytes on every system.
 *  Throws std::runtime_error. */
std::string encodePng(const IndexedImage& image, unsigned dotsPerMetre);

/** Reads a PNG file, a dot per pixel: what is darker than middle grey is black, what is transparent
 *  is white. At most 8192 by 2304 dots, as much as the printer could store.
 *  Throws std::runtime_error. */
Bitmap readGraphic(const std::string& path);

} // namespace virtual_printer
