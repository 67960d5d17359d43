#include "png_image.h"

#include "files.h"

#include <lodepng.h>

#include <stdexcept>

namespace virtual_printer
{
namespace
{

constexpr unsigned longestWidth = 8192;
constexpr unsigned longestHeight = 2304;

void check(unsigned error, const std::string& what)
{
    if (error != 0) {
        throw std::runtime_error(what + ": " + lodepng_error_text(error));
    }
}

/** Two bits per pixel, one row behind the other. */
std::vector<unsigned char> packed(const std::vector<std::uint8_t>& pixels)
{
    std::vector<unsigned char> bits((pixels.size() + 3) / 4);
    for (std::size_t at = 0; at < pixels.size(); ++at) {
        bits[at / 4] = static_cast<unsigned char>(bits[at / 4] | pixels[at] << (6 - at % 4 * 2));
    }
    return bits;
}

} // namespace

std::string encodePng(const IndexedImage& image, unsigned dotsPerMetre)
{
    lodepng::State state;
    state.encoder.auto_convert = 0;
    state.info_raw.colortype = state.info_png.color.colortype = LCT_PALETTE;
    state.info_raw.bitdepth = state.info_png.color.bitdepth = 2;
    for (const Colour& colour : image.colours) {
        for (LodePNGColorMode* mode : {&state.info_raw, &state.info_png.color}) {
            check(lodepng_palette_add(mode, colour.red, colour.green, colour.blue, colour.opacity),
                  "palette");
        }
    }
    state.info_png.phys_defined = 1;
    state.info_png.phys_x = state.info_png.phys_y = dotsPerMetre;
    state.info_png.phys_unit = 1; // metres
    std::vector<unsigned char> file;
    check(lodepng::encode(file, packed(image.pixels), static_cast<unsigned>(image.width),
                          static_cast<unsigned>(image.height), state),
          "picture");
    return {file.begin(), file.end()};
}

Bitmap readGraphic(const std::string& path)
{
    std::ifstream opened = openForReading(path);
    const std::string file{std::istreambuf_iterator<char>(opened), {}};
    const auto* bytes = reinterpret_cast<const unsigned char*>(file.data());
    lodepng::State state;
    unsigned width = 0;
    unsigned height = 0;
    // A file can claim any size.
    check(lodepng_inspect(&width, &height, &state, bytes, file.size()), path);
    if (width > longestWidth || height > longestHeight) {
        throw std::runtime_error(path + ": a graphic has at most 8192 by 2304 dots");
    }
    std::vector<unsigned char> rgba;
    check(lodepng::decode(rgba, width, height, bytes, file.size()), path);
    Bitmap dots(static_cast<int>(width), static_cast<int>(height));
    const unsigned char* pixel = rgba.data();
    for (int y = 0; y < dots.height(); ++y) {
        for (int x = 0; x < dots.width(); ++x, pixel += 4) {
            const int grey = (pixel[0] * 11 + pixel[1] * 16 + pixel[2] * 5) / 32;
            dots.set(x, y, pixel[3] >= 128 && grey < 128);
        }
    }
    return dots;
}

} // namespace virtual_printer
