#include "printed_symbol.h"

#include "code_table.h"
#include "phrases.h"

#include <algorithm>

namespace virtual_printer
{
namespace
{

std::string shortened(std::string_view text)
{
    constexpr std::size_t most = 40;
    return text.size() <= most ? quoted(text) : quoted(text.substr(0, most)) + "...";
}

Bitmap withText(const Symbol& barcode, const Settings& settings, Glyphs& glyphs, int roomDots)
{
    const bool above = (settings.barcodeTextPosition & 1) != 0;
    const bool below = (settings.barcodeTextPosition & 2) != 0;
    const Cell cell = cellOf(settings.barcodeTextFont);
    const int textWidth = static_cast<int>(barcode.text.size()) * cell.widthDots;
    const int width = above || below ? std::clamp(textWidth, barcode.dots.width(), roomDots)
                                     : barcode.dots.width();
    const int barsTop = above ? cell.heightDots : 0;
    Bitmap all(width, barsTop + barcode.dots.height() + (below ? cell.heightDots : 0));
    all.draw(barcode.dots, (width - barcode.dots.width()) / 2, barsTop);
    int x = (width - textWidth) / 2;
    for (const char character : barcode.text) {
        const Bitmap& shape =
            glyphs.glyph(static_cast<unsigned char>(character), settings.barcodeTextFont);
        if (above) {
            all.draw(shape, x, 0);
        }
        if (below) {
            all.draw(shape, x, barsTop + barcode.dots.height());
        }
        x += cell.widthDots;
    }
    return all;
}

PrintedSymbol qrCode(std::string_view data, QrLevel level, int moduleDots, int roomDots)
{
    Symbol symbol = encodeQr(data, level, moduleDots, roomDots);
    if (!symbol.problem.empty()) {
        return {{}, {}, {phrases::qrCodeNotPrinted, {symbol.problem}}};
    }
    return {std::move(symbol.dots), {phrases::qrCode, {shortened(data)}}, {}};
}

/** Rows of a raster image, each dot across by down large. */
Bitmap rasterRows(std::string_view bytes, int bytesPerRow, int widthDots, int across, int down)
{
    const int rows = static_cast<int>(bytes.size()) / bytesPerRow;
    Bitmap dots(widthDots * across, rows * down);
    for (int y = 0; y < rows; ++y) {
        const std::string_view row =
            bytes.substr(static_cast<std::size_t>(y) * static_cast<std::size_t>(bytesPerRow));
        for (int x = 0; x < widthDots; ++x) {
            const auto byte = static_cast<unsigned char>(row[static_cast<std::size_t>(x) / 8]);
            if ((byte & (0x80U >> (x % 8))) != 0) {
                dots.fill(x * across, y * down, across, down);
            }
        }
    }
    return dots;
}

} // namespace

PrintedSymbol barcodeOf(const Command& command, const Settings& settings, const Model& model,
                        Glyphs& glyphs, int roomDots)
{
    const unsigned symbology = command.arg(0);
    const Symbol barcode = encodeBarcode(symbology, command.data(), model.picksCode128Set,
                                         settings.barcodeModule, settings.barcodeHeight, roomDots);
    if (!barcode.problem.empty()) {
        return {{}, {}, {phrases::barcodeNotPrinted, {barcode.problem}}};
    }
    return {withText(barcode, settings, glyphs, roomDots),
            "[" + std::string(barcodeName(symbology)) + " " + shortened(barcode.text) + "]",
            {}};
}

std::optional<PrintedSymbol> qrCodeOf(const Command& command, const Settings& settings,
                                      int roomDots)
{
    if (command.op == Op::QrAltPrint) {
        const auto level = std::string_view("LMQH").find(static_cast<char>(command.arg(0)));
        if (level == std::string_view::npos) {
            return std::nullopt;
        }
        return qrCode(command.data(), static_cast<QrLevel>(level + 1), settings.qrAltModule,
                      roomDots);
    }
    if (command.op == Op::QrBemaPrint) {
        // The size counts half dots, the level is the share of the symbol that may be lost.
        const unsigned halfDots = command.arg(0);
        const unsigned share = command.arg(1);
        if (halfDots < 2 || halfDots > 32) {
            return std::nullopt;
        }
        const QrLevel level = share < 14   ? QrLevel::L
                              : share < 17 ? QrLevel::M
                              : share < 20 ? QrLevel::Q
                                           : QrLevel::H;
        return qrCode(command.data(), level, static_cast<int>(halfDots / 2), roomDots);
    }
    return qrCode(settings.qrData, settings.qrLevel, settings.qrModule, roomDots);
}

std::optional<PrintedSymbol> graphicOf(const Command& command, const Graphics& graphics)
{
    const std::string key = {static_cast<char>(command.arg(0)), static_cast<char>(command.arg(1))};
    const auto across = static_cast<int>(command.arg(2));
    const auto down = static_cast<int>(command.arg(3));
    const auto graphic = graphics.find(key);
    if (across < 1 || across > 2 || down < 1 || down > 2) {
        return std::nullopt;
    }
    if (graphic == graphics.end()) {
        return PrintedSymbol{{}, {}, {phrases::noGraphic, {quoted(key)}}};
    }
    Bitmap scaled(graphic->second.width() * across, graphic->second.height() * down);
    scaled.draw(graphic->second, 0, 0, across, down);
    return PrintedSymbol{std::move(scaled), {phrases::graphic, {quoted(key)}}, {}};
}

std::vector<PrintedSymbol> rasterOf(const Command& command, int roomDots)
{
    const unsigned scale = command.argOrDigit(0);
    const auto bytesPerRow = static_cast<int>(command.arg16(1));
    if (scale > 3) {
        return {};
    }
    const int across = (scale & 1U) != 0 ? 2 : 1;
    const int down = (scale & 2U) != 0 ? 2 : 1;
    const int width = std::min(bytesPerRow * 8, roomDots / across);
    constexpr std::size_t rowsAtOnce = 512;
    std::vector<PrintedSymbol> strips;
    std::string_view rest = command.data();
    while (!rest.empty()) {
        const std::string_view strip = rest.substr(0, rowsAtOnce * command.arg16(1));
        strips.push_back({rasterRows(strip, bytesPerRow, width, across, down),
                          strips.empty() ? Message(phrases::image) : Message(),
                          {}});
        rest.remove_prefix(strip.size());
    }
    return strips;
}

} // namespace virtual_printer
