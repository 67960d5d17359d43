#include "graphic_file.h"

#include <QImageReader>

#include <stdexcept>

namespace virtual_printer
{

Bitmap readGraphic(const std::string& path)
{
    QImageReader reader(QString::fromStdString(path));
    // As much as the printer could store: a file can claim any size.
    constexpr QSize largest(8192, 2304);
    if (reader.size().width() > largest.width() || reader.size().height() > largest.height()) {
        throw std::runtime_error(path + ": a graphic has at most 8192 by 2304 dots");
    }
    const QImage image = reader.read().convertToFormat(QImage::Format_ARGB32);
    if (image.isNull()) {
        throw std::runtime_error(path + ": " + reader.errorString().toStdString());
    }
    Bitmap dots(image.width(), image.height());
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            const QRgb pixel = image.pixel(x, y);
            dots.set(x, y, qAlpha(pixel) >= 128 && qGray(pixel) < 128);
        }
    }
    return dots;
}

} // namespace virtual_printer
