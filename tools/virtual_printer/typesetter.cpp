#include "typesetter.h"

#include <algorithm>

namespace virtual_printer
{
namespace
{

/** A line is printed at the latest when it has so many characters: moving back and forth could
 *  otherwise pile up any number. */
constexpr std::size_t kLongestLine = 1024;

constexpr char kOutOfRange[] = "argument out of range: ignored";
constexpr char kOnlyInPageMode[] = "only in page mode: ignored";

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
    : model_(model),
      glyphs_(glyphs),
      graphics_(graphics),
      paper_(paper),
      remarks_(std::move(remarks))
{
    settings_.codeTable = model_.powerOnCodeTable;
}

void Typesetter::command(const Command& command)
{
    at_ = command.offset;
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
    at_ = offset;
    throwAway("the end of the connection");
    leavePage();
}

// ------------------------------------------------------------------ settings

void Typesetter::setStyle(const Command& command)
{
    const unsigned argument = command.arg(0);
    Style& style = settings_.style;
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
            return remark(kOutOfRange);
        }
        style.font = numberOrDigit(argument) == 1 ? Font::B : Font::A;
        break;
    case Op::Underline:
        if (numberOrDigit(argument) > 2) {
            return remark(kOutOfRange);
        }
        style.underlineDots = static_cast<int>(numberOrDigit(argument));
        break;
    case Op::CharacterSize:
        if ((argument & 0x88U) != 0) {
            return remark(kOutOfRange);
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
        settings_.characterSpacing = static_cast<int>(argument);
        break;
    case Op::CodeTable:
        if (!hasCodeTable(argument)) {
            remark("unknown code table: drawn as PC437");
        }
        settings_.codeTable = argument;
        break;
    case Op::Alignment:
        if (numberOrDigit(argument) > 2) {
            return remark(kOutOfRange);
        }
        if (!line_.empty() && !page_) {
            return remark("in mid-line: ignored");
        }
        settings_.alignment = numberOrDigit(argument);
        break;
    case Op::DefaultLineSpacing:
        settings_.lineSpacing = Settings().lineSpacing;
        break;
    case Op::LineSpacing:
        settings_.lineSpacing = static_cast<int>(argument);
        break;
    case Op::TabStops:
        settings_.tabColumns = command.data();
        break;
    case Op::LeftMargin:
        settings_.leftMargin = static_cast<int>(command.arg16(0));
        break;
    default: // PrintWidth
        settings_.printWidth = static_cast<int>(command.arg16(0));
    }
}

void Typesetter::setSymbol(const Command& command)
{
    const unsigned argument = command.arg(0);
    const auto keep = [&](int& setting, unsigned value, unsigned lowest, unsigned highest) {
        if (value < lowest || value > highest) {
            return remark(kOutOfRange);
        }
        setting = static_cast<int>(value);
    };
    switch (command.op) {
    case Op::BarcodeHeight:
        return keep(settings_.barcodeHeight, argument, 1, 255);
    case Op::BarcodeModuleWidth:
        return keep(settings_.barcodeModule, argument, 1, 6);
    case Op::BarcodeTextPosition:
        return keep(settings_.barcodeTextPosition, numberOrDigit(argument), 0, 3);
    case Op::BarcodeTextFont:
        settings_.barcodeTextFont = numberOrDigit(argument) == 1 ? Font::B : Font::A;
        return;
    case Op::QrModuleSize:
        return keep(settings_.qrModule, argument, 1, 16);
    case Op::QrAltSettings:
        return keep(settings_.qrAltModule, command.arg(1), 1, 16);
    case Op::QrLevel:
        if (numberOrDigit(argument) > 3) {
            return remark(kOutOfRange);
        }
        settings_.qrLevel = static_cast<QrLevel>(numberOrDigit(argument) + 1);
        return;
    default: // QrStore
        settings_.qrData = command.data();
    }
}

void Typesetter::setPage(const Command& command)
{
    switch (command.op) {
    case Op::PageMode:
        return enterPage();
    case Op::PageDirection:
        if (numberOrDigit(command.arg(0)) > 3) {
            return remark(kOutOfRange);
        }
        settings_.pageDirection = static_cast<Page::Direction>(numberOrDigit(command.arg(0)));
        break;
    case Op::PageArea:
        settings_.pageArea =
            Page::Area{static_cast<int>(command.arg16(0)), static_cast<int>(command.arg16(2)),
                       static_cast<int>(command.arg16(4)), static_cast<int>(command.arg16(6))};
        break;
    default:
        if (!page_) {
            return remark(kOnlyInPageMode);
        }
        if (command.op == Op::StandardMode) {
            throwAway("standard mode");
            return leavePage();
        }
        if (command.op == Op::CancelPage) {
            line_.clear();
            return page_->clearArea();
        }
        printPage();
        if (command.op == Op::FormFeed) {
            leavePage();
        }
        return;
    }
    if (page_) {
        flushIfBegun();
        page_->setDirection(settings_.pageDirection);
        if (command.op == Op::PageArea && !page_->setArea(*settings_.pageArea)) {
            return remark("nothing of the area lies on the page: ignored");
        }
        pen_ = down_ = 0;
    }
}

void Typesetter::reset()
{
    throwAway("the reset");
    leavePage();
    settings_ = Settings();
    settings_.codeTable = model_.powerOnCodeTable;
}

// ------------------------------------------------------------------ position

int Typesetter::lineDots() const
{
    if (page_) {
        return page_->lineDots();
    }
    const int room = std::max(model_.widthDots() - settings_.leftMargin, 0);
    return std::min(room, settings_.printWidth.value_or(room));
}

int Typesetter::roomDots() const
{
    return page_ ? lineDots() - pen_ : lineDots();
}

int Typesetter::aligned(int widthDots) const
{
    if (page_) {
        return 0;
    }
    const int space = std::max(lineDots() - widthDots, 0);
    return settings_.leftMargin + (settings_.alignment == 2   ? space
                                   : settings_.alignment == 1 ? space / 2
                                                              : 0);
}

void Typesetter::move(const Command& command)
{
    const auto to = [this](int& position, int value, int end) {
        if (value < 0 || value > end) {
            return remark("outside the line or the area: ignored");
        }
        position = value;
        fullLinePrinted_ = false;
    };
    const int distance = static_cast<std::int16_t>(command.arg16(0));
    const auto position = static_cast<int>(command.arg16(0));
    switch (command.op) {
    case Op::Tab:
        return tab();
    case Op::AbsolutePosition:
        return to(pen_, position, lineDots());
    case Op::RelativePosition:
        return to(pen_, pen_ + distance, lineDots());
    default:
        if (!page_) {
            return remark(kOnlyInPageMode);
        }
        flushIfBegun();
        to(down_, command.op == Op::PageVerticalMove ? down_ + distance : position,
           page_->depthDots());
    }
}

void Typesetter::tab()
{
    const int columnDots = settings_.style.widthDots() + settings_.characterSpacing;
    constexpr int usualColumns = 8;
    int next = (pen_ / (usualColumns * columnDots) + 1) * usualColumns * columnDots;
    if (!settings_.tabColumns.empty()) {
        next = lineDots() + 1;
        for (const char column : settings_.tabColumns) {
            const int stop = static_cast<unsigned char>(column) * columnDots;
            next = stop > pen_ ? std::min(next, stop) : next;
        }
    }
    if (next <= lineDots()) {
        pen_ = next;
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
    const Style& style = settings_.style;
    fullLinePrinted_ = false;
    if (pen_ > 0 && pen_ + style.widthDots() > lineDots()) {
        flushLine(settings_.lineSpacing);
    }
    if (line_.empty()) {
        lineBegan_ = offset;
    }
    line_.push_back({characterOf(settings_.codeTable, byte), style, pen_});
    pen_ += style.widthDots() + settings_.characterSpacing * style.widthFactor;
    // A line that is full is on paper: a reset cannot take it back. The line feed that follows
    // it, as after any line, only ends it.
    if (pen_ + cellOf(Font::B).widthDots > lineDots() || line_.size() >= kLongestLine) {
        flushLine(settings_.lineSpacing);
        fullLinePrinted_ = true;
    }
}

void Typesetter::lineFeed()
{
    if (!fullLinePrinted_) {
        flushLine(settings_.lineSpacing);
    }
    fullLinePrinted_ = false;
}

void Typesetter::feedLines(int count)
{
    if (count > 0 && (fullLinePrinted_ || !line_.empty())) {
        lineFeed();
        --count;
    }
    if (count > 0) {
        emitLine(Bitmap(), count * settings_.lineSpacing,
                 std::string(static_cast<std::size_t>(count - 1), '\n'));
    }
}

void Typesetter::feedDots(int dots)
{
    fullLinePrinted_ = false;
    if (!line_.empty()) {
        flushLine(dots);
    } else if (page_) {
        emitLine(Bitmap(), dots, "");
    } else {
        paper_.feed(dots);
    }
}

void Typesetter::flushIfBegun()
{
    if (!line_.empty()) {
        flushLine(settings_.lineSpacing);
    }
}

void Typesetter::endLineBefore(std::string_view what)
{
    if (!line_.empty()) {
        remark(std::string(what) + " in mid-line: the line is printed first");
        flushLine(settings_.lineSpacing);
    }
    fullLinePrinted_ = false;
    pen_ = 0;
}

void Typesetter::flushLine(int spacingDots)
{
    int height = 0;
    for (const PlacedGlyph& glyph : line_) {
        height = std::max(height, glyph.style.heightDots());
    }
    const int left = aligned(pen_);
    Bitmap strip(page_ ? lineDots() : model_.widthDots(), height);
    for (const PlacedGlyph& glyph : line_) {
        drawGlyph(strip, glyph, left);
    }
    const std::string read = lineText(left);
    line_.clear();
    pen_ = 0;
    emitLine(strip, std::max(spacingDots, height), read);
}

void Typesetter::emitLine(const Bitmap& dots, int advanceDots, const std::string& text)
{
    if (!page_) {
        paper_.print(dots, advanceDots, text);
        return;
    }
    if (down_ >= page_->depthDots()) {
        if (dots.height() > 0) {
            remark("below the page area, not printed: " + text);
        }
        return;
    }
    if (dots.height() > 0 && page_->place(dots, 0, down_, text) > 0) {
        remark("cut off at the edge of the page area: " + text);
    }
    down_ += advanceDots;
}

void Typesetter::drawGlyph(Bitmap& strip, const PlacedGlyph& glyph, int left)
{
    const Style& style = glyph.style;
    const Bitmap& shape = glyphs_.glyph(glyph.character, style.font);
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
    for (const PlacedGlyph& glyph : line_) {
        const int gap = (glyph.x - end) / cellOf(glyph.style.font).widthDots;
        read.append(static_cast<std::size_t>(std::max(gap, 0)), ' ');
        appendUtf8(read, glyph.character);
        end = glyph.x + glyph.style.widthDots();
    }
    return read;
}

void Typesetter::throwAway(std::string_view who)
{
    if (!line_.empty()) {
        remark(std::string(who) + " throws away what was received at " +
               std::to_string(lineBegan_) + " and not yet printed: " + lineText(0));
    }
    if (page_ && page_->isUnprinted()) {
        remark(std::string(who) + " throws away a page that was not printed");
    }
    line_.clear();
    pen_ = 0;
    fullLinePrinted_ = false;
}

// ------------------------------------------------------------------ symbols and graphics

void Typesetter::refuse(const std::string& what)
{
    remark(what);
    paper_.note(what);
}

void Typesetter::printSymbol(const Bitmap& dots, const std::string& caption, Foot foot)
{
    if (page_) {
        const int top =
            foot == Foot::OnLine ? down_ + cellOf(Font::A).heightDots - dots.height() : down_;
        if (page_->place(dots, pen_, top, caption) > 0) {
            remark("cut off at the edge of the page area: " + caption);
        }
        pen_ += dots.width();
        return;
    }
    endLineBefore("symbol");
    const int left = aligned(dots.width());
    Bitmap strip(model_.widthDots(), dots.height());
    strip.draw(dots, left, 0);
    const std::string indent(static_cast<std::size_t>(left / cellOf(Font::A).widthDots), ' ');
    paper_.print(strip, dots.height(), indent + caption);
}

void Typesetter::printBarcode(const Command& command)
{
    const unsigned symbology = command.arg(0);
    const Symbol barcode =
        encodeBarcode(symbology, command.data(), model_.picksCode128Set, settings_.barcodeModule,
                      settings_.barcodeHeight, roomDots());
    if (!barcode.problem.empty()) {
        return refuse("barcode not printed: it " + barcode.problem);
    }
    const std::string caption =
        "[" + std::string(barcodeName(symbology)) + " " + shortened(barcode.text) + "]";
    printSymbol(withText(barcode), caption, model_.symbolsStandOnLine ? Foot::OnLine : Foot::Below);
}

Bitmap Typesetter::withText(const Symbol& barcode)
{
    const bool above = (settings_.barcodeTextPosition & 1) != 0;
    const bool below = (settings_.barcodeTextPosition & 2) != 0;
    const Cell cell = cellOf(settings_.barcodeTextFont);
    const int textWidth = static_cast<int>(barcode.text.size()) * cell.widthDots;
    const int width = above || below ? std::clamp(textWidth, barcode.dots.width(), roomDots())
                                     : barcode.dots.width();
    const int barsTop = above ? cell.heightDots : 0;
    Bitmap all(width, barsTop + barcode.dots.height() + (below ? cell.heightDots : 0));
    all.draw(barcode.dots, (width - barcode.dots.width()) / 2, barsTop);
    int x = (width - textWidth) / 2;
    for (const char character : barcode.text) {
        const Bitmap& shape =
            glyphs_.glyph(static_cast<unsigned char>(character), settings_.barcodeTextFont);
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
                model_.symbolsStandOnLine ? Foot::OnLine : Foot::Below);
}

void Typesetter::printGraphic(const Command& command)
{
    const std::string key = {static_cast<char>(command.arg(0)), static_cast<char>(command.arg(1))};
    const unsigned across = command.arg(2);
    const unsigned down = command.arg(3);
    const auto graphic = graphics_.find(key);
    if (across < 1 || across > 2 || down < 1 || down > 2) {
        return remark(kOutOfRange);
    }
    if (graphic == graphics_.end()) {
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
        return remark(kOutOfRange);
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
    if (page_) {
        return;
    }
    endLineBefore("page mode");
    page_.emplace(model_.widthDots());
    page_->setDirection(settings_.pageDirection);
    if (settings_.pageArea) {
        page_->setArea(*settings_.pageArea);
    }
    down_ = 0;
}

void Typesetter::printPage()
{
    flushIfBegun();
    const Bitmap dots = page_->dots();
    paper_.print(dots, dots.height(), page_->text());
    page_->markPrinted();
}

void Typesetter::leavePage()
{
    if (page_) {
        page_.reset();
        settings_.pageArea.reset();
        line_.clear();
        pen_ = 0;
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
        return printQr(settings_.qrData, settings_.qrLevel, settings_.qrModule);
    case Op::QrAltPrint: {
        const auto level = std::string_view("LMQH").find(static_cast<char>(command.arg(0)));
        return level == std::string_view::npos
                   ? remark(kOutOfRange)
                   : printQr(command.data(), static_cast<QrLevel>(level + 1),
                             settings_.qrAltModule);
    }
    case Op::QrBemaPrint: {
        // The size counts half dots, the level is the share of the symbol that may be lost.
        const unsigned share = command.arg(1);
        const QrLevel level = share < 14   ? QrLevel::L
                              : share < 17 ? QrLevel::M
                              : share < 20 ? QrLevel::Q
                                           : QrLevel::H;
        return command.arg(0) < 2 || command.arg(0) > 32
                   ? remark(kOutOfRange)
                   : printQr(command.data(), level, static_cast<int>(command.arg(0)) / 2);
    }
    case Op::StoredGraphic:
        return printGraphic(command);
    case Op::RasterImage:
        return printRaster(command);
    case Op::Cut:
        if (page_) {
            return remark("in page mode: ignored");
        }
        endLineBefore("cut");
        if (command.arg(0) >= 'A') { // these forms feed first
            paper_.feed(static_cast<int>(command.arg(1)));
        }
        return paper_.cut();
    case Op::Drawer:
        if (numberOrDigit(command.arg(0)) > 1) {
            return remark(kOutOfRange);
        }
        return paper_.note("drawer " + std::to_string(numberOrDigit(command.arg(0))) + ": " +
                           number(1, 2) + " ms on, " + number(2, 2) + " ms off");
    case Op::Buzzer:
        return paper_.note("buzzer " + number(0, 1) + " times: " + number(1, 100) + " ms on, " +
                           number(2, 100) + " ms off");
    default:
        return; // nothing that shows on paper; the list of commands has it
    }
}

} // namespace virtual_printer
