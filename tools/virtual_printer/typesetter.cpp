#include "typesetter.h"

#include <algorithm>

namespace virtual_printer
{
namespace
{

/** A line is printed at the latest when it has so many characters: moving back and forth could
 *  otherwise pile up any number. */
constexpr std::size_t longestLine = 1024;

constexpr char outOfRange[] = "argument out of range: ignored";
constexpr char onlyInPageMode[] = "only in page mode: ignored";

/** Many arguments may be a number or its digit: 0 to 3 or "0" to "3". */
unsigned numberOrDigit(unsigned argument)
{
    return argument >= '0' && argument <= '9' ? argument - '0' : argument;
}

std::string shortened(std::string_view text)
{
    constexpr std::size_t most = 40;
    return text.size() <= most ? quoted(text) : quoted(text.substr(0, most)) + "...";
}

} // namespace

Typesetter::Typesetter(const Model& model, Glyphs& glyphs, const Graphics& graphics, Paper& paper,
                       Remarks remarks)
    : m_model(model),
      m_glyphs(glyphs),
      m_graphics(graphics),
      m_paper(paper),
      m_remarks(std::move(remarks))
{
    m_settings.codeTable = m_model.powerOnCodeTable;
}

void Typesetter::command(const Command& command)
{
    m_at = command.offset;
    switch (command.op) {
    case Op::Text:
        return text(command);
    case Op::PrintMode:
    case Op::Font:
    case Op::Emphasis:
    case Op::DoubleStrike:
    case Op::Underline:
    case Op::Reverse:
    case Op::CharacterSize:
        return setStyle(command);
    case Op::CharacterSpacing:
    case Op::CodeTable:
    case Op::Alignment:
    case Op::DefaultLineSpacing:
    case Op::LineSpacing:
    case Op::TabStops:
    case Op::LeftMargin:
    case Op::PrintWidth:
        return setLayout(command);
    case Op::BarcodeHeight:
    case Op::BarcodeModuleWidth:
    case Op::BarcodeTextPosition:
    case Op::BarcodeTextFont:
    case Op::QrModuleSize:
    case Op::QrLevel:
    case Op::QrStore:
    case Op::QrAltSettings:
        return setSymbol(command);
    case Op::PageMode:
    case Op::StandardMode:
    case Op::PrintPage:
    case Op::FormFeed:
    case Op::CancelPage:
    case Op::PageArea:
    case Op::PageDirection:
        return setPage(command);
    case Op::Tab:
    case Op::AbsolutePosition:
    case Op::RelativePosition:
    case Op::PageVerticalPosition:
    case Op::PageVerticalMove:
        return move(command);
    default:
        return act(command);
    }
}

void Typesetter::finish(std::uint64_t offset)
{
    m_at = offset;
    throwAway("the end of the connection");
    leavePage();
}

// ------------------------------------------------------------------ settings

void Typesetter::setStyle(const Command& command)
{
    const unsigned argument = command.arg(0);
    Style& style = m_settings.style;
    switch (command.op) {
    case Op::PrintMode: // sets all five at once: what its bits leave out is switched off
        style.font = (argument & 0x01U) != 0 ? Font::B : Font::A;
        style.emphasised = (argument & 0x08U) != 0;
        style.heightFactor = (argument & 0x10U) != 0 ? 2 : 1;
        style.widthFactor = (argument & 0x20U) != 0 ? 2 : 1;
        style.underlineDots = (argument & 0x80U) != 0 ? 1 : 0;
        break;
    case Op::Font:
        if (numberOrDigit(argument) > 1) {
            return remark(outOfRange);
        }
        style.font = numberOrDigit(argument) == 1 ? Font::B : Font::A;
        break;
    case Op::Underline:
        if (numberOrDigit(argument) > 2) {
            return remark(outOfRange);
        }
        style.underlineDots = static_cast<int>(numberOrDigit(argument));
        break;
    case Op::CharacterSize:
        if ((argument & 0x88U) != 0) {
            return remark(outOfRange);
        }
        style.widthFactor = static_cast<int>(argument >> 4U) + 1;
        style.heightFactor = static_cast<int>(argument & 7U) + 1;
        break;
    case Op::Emphasis:
        style.emphasised = (argument & 1U) != 0;
        break;
    case Op::DoubleStrike:
        style.doubleStrike = (argument & 1U) != 0;
        break;
    default: // Reverse
        style.reverse = (argument & 1U) != 0;
    }
}

void Typesetter::setLayout(const Command& command)
{
    const unsigned argument = command.arg(0);
    switch (command.op) {
    case Op::CharacterSpacing:
        m_settings.characterSpacing = static_cast<int>(argument);
        break;
    case Op::CodeTable:
        if (!hasCodeTable(argument)) {
            remark("unknown code table: drawn as PC437");
        }
        m_settings.codeTable = argument;
        break;
    case Op::Alignment:
        if (numberOrDigit(argument) > 2) {
            return remark(outOfRange);
        }
        if (!m_line.empty() && !m_page) {
            return remark("in mid-line: ignored");
        }
        m_settings.alignment = numberOrDigit(argument);
        break;
    case Op::DefaultLineSpacing:
        m_settings.lineSpacing = Settings().lineSpacing;
        break;
    case Op::LineSpacing:
        m_settings.lineSpacing = static_cast<int>(argument);
        break;
    case Op::TabStops:
        m_settings.tabColumns = command.data();
        break;
    case Op::LeftMargin:
        m_settings.leftMargin = static_cast<int>(command.arg16(0));
        break;
    default: // PrintWidth
        m_settings.printWidth = static_cast<int>(command.arg16(0));
    }
}

void Typesetter::setSymbol(const Command& command)
{
    const unsigned argument = command.arg(0);
    const auto keep = [&](int& setting, unsigned value, unsigned lowest, unsigned highest) {
        if (value < lowest || value > highest) {
            return remark(outOfRange);
        }
        setting = static_cast<int>(value);
    };
    switch (command.op) {
    case Op::BarcodeHeight:
        return keep(m_settings.barcodeHeight, argument, 1, 255);
    case Op::BarcodeModuleWidth:
        return keep(m_settings.barcodeModule, argument, 1, 6);
    case Op::BarcodeTextPosition:
        return keep(m_settings.barcodeTextPosition, numberOrDigit(argument), 0, 3);
    case Op::BarcodeTextFont:
        m_settings.barcodeTextFont = numberOrDigit(argument) == 1 ? Font::B : Font::A;
        return;
    case Op::QrModuleSize:
        return keep(m_settings.qrModule, argument, 1, 16);
    case Op::QrAltSettings:
        return keep(m_settings.qrAltModule, command.arg(1), 1, 16);
    case Op::QrLevel:
        if (numberOrDigit(argument) > 3) {
            return remark(outOfRange);
        }
        m_settings.qrLevel = static_cast<QrLevel>(numberOrDigit(argument) + 1);
        return;
    default: // QrStore
        m_settings.qrData = command.data();
    }
}

void Typesetter::setPage(const Command& command)
{
    switch (command.op) {
    case Op::PageMode:
        return enterPage();
    case Op::PageDirection:
        if (numberOrDigit(command.arg(0)) > 3) {
            return remark(outOfRange);
        }
        m_settings.pageDirection = static_cast<Page::Direction>(numberOrDigit(command.arg(0)));
        break;
    case Op::PageArea:
        m_settings.pageArea =
            Page::Area{static_cast<int>(command.arg16(0)), static_cast<int>(command.arg16(2)),
                       static_cast<int>(command.arg16(4)), static_cast<int>(command.arg16(6))};
        break;
    default:
        if (!m_page) {
            return remark(onlyInPageMode);
        }
        if (command.op == Op::StandardMode) {
            throwAway("standard mode");
            return leavePage();
        }
        if (command.op == Op::CancelPage) {
            m_line.clear();
            return m_page->clearArea();
        }
        printPage();
        if (command.op == Op::FormFeed) {
            leavePage();
        }
        return;
    }
    if (m_page) {
        flushIfBegun();
        m_page->setDirection(m_settings.pageDirection);
        if (command.op == Op::PageArea && !m_page->setArea(*m_settings.pageArea)) {
            return remark("nothing of the area lies on the page: ignored");
        }
        m_pen = m_down = 0;
    }
}

void Typesetter::reset()
{
    throwAway("the reset");
    leavePage();
    m_settings = Settings();
    m_settings.codeTable = m_model.powerOnCodeTable;
}

// ------------------------------------------------------------------ position

int Typesetter::lineDots() const
{
    if (m_page) {
        return m_page->lineDots();
    }
    const int room = std::max(m_model.widthDots() - m_settings.leftMargin, 0);
    return std::min(room, m_settings.printWidth.value_or(room));
}

int Typesetter::roomDots() const
{
    return m_page ? lineDots() - m_pen : lineDots();
}

int Typesetter::aligned(int widthDots) const
{
    if (m_page) {
        return 0;
    }
    const int space = std::max(lineDots() - widthDots, 0);
    return m_settings.leftMargin + (m_settings.alignment == 2   ? space
                                    : m_settings.alignment == 1 ? space / 2
                                                                : 0);
}

void Typesetter::move(const Command& command)
{
    const auto to = [this](int& position, int value, int end) {
        if (value < 0 || value > end) {
            return remark("outside the line or the area: ignored");
        }
        position = value;
        m_fullLinePrinted = false;
    };
    const int distance = static_cast<std::int16_t>(command.arg16(0));
    const auto position = static_cast<int>(command.arg16(0));
    switch (command.op) {
    case Op::Tab:
        return tab();
    case Op::AbsolutePosition:
        return to(m_pen, position, lineDots());
    case Op::RelativePosition:
        return to(m_pen, m_pen + distance, lineDots());
    default:
        if (!m_page) {
            return remark(onlyInPageMode);
        }
        flushIfBegun();
        to(m_down, command.op == Op::PageVerticalMove ? m_down + distance : position,
           m_page->depthDots());
    }
}

void Typesetter::tab()
{
    const int columnDots = m_settings.style.widthDots() + m_settings.characterSpacing;
    constexpr int usualColumns = 8;
    int next = (m_pen / (usualColumns * columnDots) + 1) * usualColumns * columnDots;
    if (!m_settings.tabColumns.empty()) {
        next = lineDots() + 1;
        for (const char column : m_settings.tabColumns) {
            const int stop = static_cast<unsigned char>(column) * columnDots;
            next = stop > m_pen ? std::min(next, stop) : next;
        }
    }
    if (next <= lineDots()) {
        m_pen = next;
    }
}

// ------------------------------------------------------------------ lines

void Typesetter::text(const Command& command)
{
    for (std::size_t i = 0; i < command.bytes.size(); ++i) {
        character(static_cast<unsigned char>(command.bytes[i]), command.offset + i);
    }
}

void Typesetter::character(unsigned char byte, std::uint64_t offset)
{
    const Style& style = m_settings.style;
    m_fullLinePrinted = false;
    if (m_pen > 0 && m_pen + style.widthDots() > lineDots()) {
        flushLine(m_settings.lineSpacing);
    }
    if (m_line.empty()) {
        m_lineBegan = offset;
    }
    m_line.push_back({characterOf(m_settings.codeTable, byte), style, m_pen});
    m_pen += style.widthDots() + m_settings.characterSpacing * style.widthFactor;
    // A line that is full is on paper: a reset cannot take it back. The line feed that follows
    // it, as after any line, only ends it.
    if (m_pen + cellOf(Font::B).widthDots > lineDots() || m_line.size() >= longestLine) {
        flushLine(m_settings.lineSpacing);
        m_fullLinePrinted = true;
    }
}

void Typesetter::lineFeed()
{
    if (!m_fullLinePrinted) {
        flushLine(m_settings.lineSpacing);
    }
    m_fullLinePrinted = false;
}

void Typesetter::feedLines(int count)
{
    if (count > 0 && (m_fullLinePrinted || !m_line.empty())) {
        lineFeed();
        --count;
    }
    if (count > 0) {
        emitLine(Bitmap(), count * m_settings.lineSpacing,
                 std::string(static_cast<std::size_t>(count - 1), '\n'));
    }
}

void Typesetter::feedDots(int dots)
{
    m_fullLinePrinted = false;
    if (!m_line.empty()) {
        flushLine(dots);
    } else if (m_page) {
        emitLine(Bitmap(), dots, "");
    } else {
        m_paper.feed(dots);
    }
}

void Typesetter::flushIfBegun()
{
    if (!m_line.empty()) {
        flushLine(m_settings.lineSpacing);
    }
}

void Typesetter::endLineBefore(std::string_view what)
{
    if (!m_line.empty()) {
        remark(std::string(what) + " in mid-line: the line is printed first");
        flushLine(m_settings.lineSpacing);
    }
    m_fullLinePrinted = false;
    m_pen = 0;
}

void Typesetter::flushLine(int spacingDots)
{
    int height = 0;
    for (const PlacedGlyph& glyph : m_line) {
        height = std::max(height, glyph.style.heightDots());
    }
    const int left = aligned(m_pen);
    Bitmap strip(m_page ? lineDots() : m_model.widthDots(), height);
    for (const PlacedGlyph& glyph : m_line) {
        drawGlyph(strip, glyph, left);
    }
    const std::string read = lineText(left);
    m_line.clear();
    m_pen = 0;
    emitLine(strip, std::max(spacingDots, height), read);
}

void Typesetter::emitLine(const Bitmap& dots, int advanceDots, const std::string& text)
{
    if (!m_page) {
        m_paper.print(dots, advanceDots, text);
        return;
    }
    if (m_down >= m_page->depthDots()) {
        if (dots.height() > 0) {
            remark("below the page area, not printed: " + text);
        }
        return;
    }
    if (dots.height() > 0 && m_page->place(dots, 0, m_down, text) > 0) {
        remark("cut off at the edge of the page area: " + text);
    }
    m_down += advanceDots;
}

void Typesetter::drawGlyph(Bitmap& strip, const PlacedGlyph& glyph, int left)
{
    const Style& style = glyph.style;
    const Bitmap& shape = m_glyphs.glyph(glyph.character, style.font);
    const Cell cell = cellOf(style.font);
    const bool bold = style.emphasised || style.doubleStrike;
    const int x = left + glyph.x;
    const int y = strip.height() - style.heightDots(); // all stand on one base line
    for (int row = 0; row < cell.heightDots; ++row) {
        // A row of a cell fits into two bytes, its leftmost dot in the highest bit.
        unsigned ink = shape.height() > row
                           ? static_cast<unsigned>(shape.row(row)[0] << 8) | shape.row(row)[1]
                           : 0;
        ink = bold ? ink | (ink >> 1U) : ink;
        ink = style.reverse ? ~ink : ink;
        for (int column = 0; column < cell.widthDots; ++column) {
            if ((ink & (0x8000U >> static_cast<unsigned>(column))) != 0) {
                strip.fill(x + column * style.widthFactor, y + row * style.heightFactor,
                           style.widthFactor, style.heightFactor);
            }
        }
    }
    if (!style.reverse) {
        strip.fill(x, strip.height() - style.underlineDots, style.widthDots(), style.underlineDots);
    }
}

std::string Typesetter::lineText(int leftDots) const
{
    std::string read;
    int end = -leftDots;
    for (const PlacedGlyph& glyph : m_line) {
        const int gap = (glyph.x - end) / cellOf(glyph.style.font).widthDots;
        read.append(static_cast<std::size_t>(std::max(gap, 0)), ' ');
        appendUtf8(read, glyph.character);
        end = glyph.x + glyph.style.widthDots();
    }
    return read;
}

void Typesetter::throwAway(std::string_view who)
{
    if (!m_line.empty()) {
        remark(std::string(who) + " throws away what was received at " +
               std::to_string(m_lineBegan) + " and not yet printed: " + lineText(0));
    }
    if (m_page && m_page->isUnprinted()) {
        remark(std::string(who) + " throws away a page that was not printed");
    }
    m_line.clear();
    m_pen = 0;
    m_fullLinePrinted = false;
}

// ------------------------------------------------------------------ symbols and graphics

void Typesetter::refuse(const std::string& what)
{
    remark(what);
    m_paper.note(what);
}

void Typesetter::printSymbol(const Bitmap& dots, const std::string& caption, Foot foot)
{
    if (m_page) {
        const int top =
            foot == Foot::OnLine ? m_down + cellOf(Font::A).heightDots - dots.height() : m_down;
        if (m_page->place(dots, m_pen, top, caption) > 0) {
            remark("cut off at the edge of the page area: " + caption);
        }
        m_pen += dots.width();
        return;
    }
    endLineBefore("symbol");
    const int left = aligned(dots.width());
    Bitmap strip(m_model.widthDots(), dots.height());
    strip.draw(dots, left, 0);
    const std::string indent(static_cast<std::size_t>(left / cellOf(Font::A).widthDots), ' ');
    m_paper.print(strip, dots.height(), indent + caption);
}

void Typesetter::printBarcode(const Command& command)
{
    const unsigned symbology = command.arg(0);
    const Symbol barcode =
        encodeBarcode(symbology, command.data(), m_model.picksCode128Set, m_settings.barcodeModule,
                      m_settings.barcodeHeight, roomDots());
    if (!barcode.problem.empty()) {
        return refuse("barcode not printed: it " + barcode.problem);
    }
    const std::string caption =
        "[" + std::string(barcodeName(symbology)) + " " + shortened(barcode.text) + "]";
    printSymbol(withText(barcode), caption,
                m_model.symbolsStandOnLine ? Foot::OnLine : Foot::Below);
}

Bitmap Typesetter::withText(const Symbol& barcode)
{
    const bool above = (m_settings.barcodeTextPosition & 1) != 0;
    const bool below = (m_settings.barcodeTextPosition & 2) != 0;
    const Cell cell = cellOf(m_settings.barcodeTextFont);
    const int textWidth = static_cast<int>(barcode.text.size()) * cell.widthDots;
    const int width = above || below ? std::clamp(textWidth, barcode.dots.width(), roomDots())
                                     : barcode.dots.width();
    const int barsTop = above ? cell.heightDots : 0;
    Bitmap all(width, barsTop + barcode.dots.height() + (below ? cell.heightDots : 0));
    all.draw(barcode.dots, (width - barcode.dots.width()) / 2, barsTop);
    int x = (width - textWidth) / 2;
    for (const char character : barcode.text) {
        const Bitmap& shape =
            m_glyphs.glyph(static_cast<unsigned char>(character), m_settings.barcodeTextFont);
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

void Typesetter::printQr(std::string_view data, QrLevel level, int moduleDots)
{
    const Symbol symbol = encodeQr(data, level, moduleDots, roomDots());
    if (!symbol.problem.empty()) {
        return refuse("QR code not printed: it " + symbol.problem);
    }
    printSymbol(symbol.dots, "[QR code " + shortened(data) + "]",
                m_model.symbolsStandOnLine ? Foot::OnLine : Foot::Below);
}

void Typesetter::printGraphic(const Command& command)
{
    const std::string key = {static_cast<char>(command.arg(0)), static_cast<char>(command.arg(1))};
    const unsigned across = command.arg(2);
    const unsigned down = command.arg(3);
    const auto graphic = m_graphics.find(key);
    if (across < 1 || across > 2 || down < 1 || down > 2) {
        return remark(outOfRange);
    }
    if (graphic == m_graphics.end()) {
        return remark("no graphic is stored under " + quoted(key) + ": nothing printed");
    }
    Bitmap scaled(graphic->second.width() * static_cast<int>(across),
                  graphic->second.height() * static_cast<int>(down));
    scaled.draw(graphic->second, 0, 0, static_cast<int>(across), static_cast<int>(down));
    printSymbol(scaled, "[graphic " + quoted(key) + "]", Foot::Below);
}

void Typesetter::printRaster(const Command& command)
{
    const unsigned scale = numberOrDigit(command.arg(0));
    const auto bytesPerRow = static_cast<int>(command.arg16(1));
    const auto rows = static_cast<int>(command.arg16(3));
    if (scale > 3) {
        return remark(outOfRange);
    }
    const int across = (scale & 1U) != 0 ? 2 : 1;
    const int down = (scale & 2U) != 0 ? 2 : 1;
    const int width = std::min(bytesPerRow * 8, roomDots() / across);
    const std::string_view data = command.data();
    constexpr int rowsAtOnce = 512;
    for (int from = 0; from < rows; from += rowsAtOnce) {
        const int count = std::min(rowsAtOnce, rows - from);
        Bitmap slice(width * across, count * down);
        for (int y = 0; y < count; ++y) {
            for (int x = 0; x < width; ++x) {
                const auto at =
                    static_cast<std::size_t>(from + y) * static_cast<std::size_t>(bytesPerRow) +
                    static_cast<std::size_t>(x) / 8;
                if ((static_cast<unsigned char>(data[at]) & (0x80U >> (x % 8U))) != 0) {
                    slice.fill(x * across, y * down, across, down);
                }
            }
        }
        printSymbol(slice, from == 0 ? "[image]" : "", Foot::Below);
    }
}

// ------------------------------------------------------------------ page mode

void Typesetter::enterPage()
{
    if (m_page) {
        return;
    }
    endLineBefore("page mode");
    m_page.emplace(m_model.widthDots());
    m_page->setDirection(m_settings.pageDirection);
    if (m_settings.pageArea) {
        m_page->setArea(*m_settings.pageArea);
    }
    m_down = 0;
}

void Typesetter::printPage()
{
    flushIfBegun();
    const Bitmap dots = m_page->dots();
    m_paper.print(dots, dots.height(), m_page->text());
    m_page->markPrinted();
}

void Typesetter::leavePage()
{
    if (m_page) {
        m_page.reset();
        m_settings.pageArea.reset();
        m_line.clear();
        m_pen = 0;
    }
}

// ------------------------------------------------------------------ the rest

void Typesetter::act(const Command& command)
{
    const auto number = [&command](std::size_t index, unsigned factor) {
        return std::to_string(command.arg(index) * factor);
    };
    switch (command.op) {
    case Op::LineFeed:
        return lineFeed();
    case Op::Reset:
        return reset();
    case Op::FeedLines:
        return feedLines(static_cast<int>(command.arg(0)));
    case Op::FeedDots:
        return feedDots(static_cast<int>(command.arg(0)));
    case Op::Barcode:
        return printBarcode(command);
    case Op::QrPrint:
        return printQr(m_settings.qrData, m_settings.qrLevel, m_settings.qrModule);
    case Op::QrAltPrint: {
        const auto level = std::string_view("LMQH").find(static_cast<char>(command.arg(0)));
        return level == std::string_view::npos
                   ? remark(outOfRange)
                   : printQr(command.data(), static_cast<QrLevel>(level + 1),
                             m_settings.qrAltModule);
    }
    case Op::QrBemaPrint: {
        // The size counts half dots, the level is the share of the symbol that may be lost.
        const unsigned share = command.arg(1);
        const QrLevel level = share < 14   ? QrLevel::L
                              : share < 17 ? QrLevel::M
                              : share < 20 ? QrLevel::Q
                                           : QrLevel::H;
        return command.arg(0) < 2 || command.arg(0) > 32
                   ? remark(outOfRange)
                   : printQr(command.data(), level, static_cast<int>(command.arg(0)) / 2);
    }
    case Op::StoredGraphic:
        return printGraphic(command);
    case Op::RasterImage:
        return printRaster(command);
    case Op::Cut:
        if (m_page) {
            return remark("in page mode: ignored");
        }
        endLineBefore("cut");
        if (command.arg(0) >= 'A') { // these forms feed first
            m_paper.feed(static_cast<int>(command.arg(1)));
        }
        return m_paper.cut();
    case Op::Drawer:
        if (numberOrDigit(command.arg(0)) > 1) {
            return remark(outOfRange);
        }
        return m_paper.note("drawer " + std::to_string(numberOrDigit(command.arg(0))) + ": " +
                            number(1, 2) + " ms on, " + number(2, 2) + " ms off");
    case Op::Buzzer:
        return m_paper.note("buzzer " + number(0, 1) + " times: " + number(1, 100) + " ms on, " +
                            number(2, 100) + " ms off");
    default:
        return; // nothing that shows on paper; the list of commands has it
    }
}

} // namespace virtual_printer
