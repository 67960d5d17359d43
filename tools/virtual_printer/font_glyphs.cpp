#include "font_glyphs.h"

#include <QFile>
#include <QFontDatabase>
#include <QFontMetrics>
#include <QGuiApplication>
#include <QImage>
#include <QPainter>

#include <stdexcept>

namespace virtual_printer
{
namespace
{

constexpr char usualFont[] = "/usr/share/fonts/truetype/dejavu/DejaVuSansMono.ttf";

/** Size at which a character of the usual font is as wide as the cell, and its base line. */
struct Fit {
    int pixelSize;
    int baseLine;
};
constexpr Fit fitOf(Font font)
{
    return font == Font::A ? Fit{20, 19} : Fit{15, 14};
}

QFont qtFont(const std::string& family, Font font)
{
    QFont made(QString::fromStdString(family));
    made.setPixelSize(fitOf(font).pixelSize);
    made.setStyleStrategy(
        static_cast<QFont::StyleStrategy>(QFont::NoAntialias | QFont::NoFontMerging));
    made.setHintingPreference(QFont::PreferFullHinting);
    return made;
}

} // namespace

OffscreenApplication::OffscreenApplication()
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    static int argc = 1;
    static char name[] = "q7_virtual_printer";
    static char* argv[] = {name, nullptr};
    // Without a desktop session Qt warns about folders that nothing here needs.
    const QtMessageHandler usual =
        qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) {});
    m_application = std::make_unique<QGuiApplication>(argc, argv);
    qInstallMessageHandler(usual);
}

OffscreenApplication::~OffscreenApplication() = default;

FontGlyphs::FontGlyphs(const std::string& fontFile)
{
    const QString path = fontFile.empty() ? QString(usualFont) : QString::fromStdString(fontFile);
    const QStringList families =
        QFontDatabase::applicationFontFamilies(QFontDatabase::addApplicationFont(path));
    if (families.isEmpty()) {
        throw std::runtime_error("no font at " + path.toStdString() +
                                 " (Debian's package fonts-dejavu-core has the usual one)");
    }
    m_family = families.front().toStdString();
}

const Bitmap& FontGlyphs::glyph(char16_t character, Font font)
{
    const auto [entry, isNew] = m_drawn.try_emplace({character, font});
    Bitmap& dots = entry->second;
    if (!isNew) {
        return dots;
    }
    const Cell cell = cellOf(font);
    dots = Bitmap(cell.widthDots, cell.heightDots);
    const QFont shape = qtFont(m_family, font);
    if (!QFontMetrics(shape).inFont(QChar(character))) {
        return dots;
    }
    QImage image(cell.widthDots, cell.heightDots, QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    painter.setFont(shape);
    painter.drawText(0, fitOf(font).baseLine, QString(QChar(character)));
    painter.end();
    for (int y = 0; y < cell.heightDots; ++y) {
        for (int x = 0; x < cell.widthDots; ++x) {
            dots.set(x, y, qGray(image.pixel(x, y)) < 128);
        }
    }
    return dots;
}

} // namespace virtual_printer
