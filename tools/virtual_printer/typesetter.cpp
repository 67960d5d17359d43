#include "typesetter.h"

#include "code_table.h"
#include "phrases.h"

#include <algorithm>

namespace virtual_printer
{

Typesetter::Typesetter(const Model& model, Glyphs& glyphs, const Graphics& graphics, Paper& paper,
                       Remarks remarks, Language language)
    : m_model(model),
      m_glyphs(glyphs),
      m_graphics(graphics),
      m_paper(paper),
      m_remarks(std::move(remarks)),
      m_language(language),
      m_settings(model.powerOnCodeTable)
{
}

void Typesetter::command(const Command& command)
{
    m_at = command.offset;
    switch (command.op) {
    case Op::Text:
        return text(command);
    case Op::PageMode:
    case Op::StandardMode:
    case Op::PrintPage:
    case Op::FormFeed:
    case Op::CancelPage:
    case Op::PageArea:
    case Op::PageDirection:
        return pageCommand(command);
    case Op::Tab:
    case Op::AbsolutePosition:
    case Op::RelativePosition:
    case Op::PageVerticalPosition:
    case Op::PageVerticalMove:
        return move(command);
    default:
        if (!set(command)) {
            act(command);
        }
    }
}

void Typesetter::finish(std::uint64_t offset)
{
    m_at = offset;
    throwAway(phrases::theEndOfTheConnection);
    leavePage();
}

// ------------------------------------------------------------------ settings

bool Typesetter::set(const Command& command)
{
    if (command.op == Op::Alignment && !m_line.empty() && !m_page) {
        remark(phrases::inMidLine);
        return true;
    }
    const Taking taking = m_settings.take(command);
    if (taking == Taking::OutOfRange) {
        remark(phrases::outOfRange);
    } else if (taking == Taking::UnknownCodeTable) {
        remark(phrases::unknownCodeTable);
    }
    return taking != Taking::SetsNothing;
}

void Typesetter::reset()
{
    throwAway(phrases::theReset);
    leavePage();
    m_settings = Settings(m_model.powerOnCodeTable);
}

// ------------------------------------------------------------------ position

int Typesetter::leftMargin() const
{
    return std::min(m_settings.leftMargin, m_model.widthDots());
}

int Typesetter::lineDots() const
{
    if (m_page) {
        return m_page->lineDots();
    }
    const int room = m_model.widthDots() - leftMargin();
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
    return leftMargin() + (m_settings.alignment == 2   ? space
                           : m_settings.alignment == 1 ? space / 2
                                                       : 0);
}

void Typesetter::move(const Command& command)
{
    const auto to = [this](int& position, int value, int end) {
        if (value < 0 || value > end) {
            return remark(phrases::outsideLineOrArea);
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
            return remark(phrases::onlyInPageMode);
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
    m_line.add(characterOf(m_settings.codeTable, byte), style, m_pen);
    m_pen += style.widthDots() + m_settings.characterSpacing * style.widthFactor;
    // A line that is full is on paper: a reset cannot take it back. The line feed that follows
    // it, as after any line, only ends it.
    if (m_pen + cellOf(Font::B).widthDots > lineDots() || m_line.isFull()) {
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

void Typesetter::endLineBefore(const Message& what)
{
    if (!m_line.empty()) {
        remark({phrases::linePrintedFirst, {what}});
        flushLine(m_settings.lineSpacing);
    }
    m_fullLinePrinted = false;
    m_pen = 0;
}

void Typesetter::flushLine(int spacingDots)
{
    const int left = aligned(m_pen);
    const Bitmap strip = m_line.dots(m_glyphs, m_page ? lineDots() : m_model.widthDots(), left);
    const std::string read = m_line.text(left);
    m_line.clear();
    m_pen = 0;
    emitLine(strip, std::max(spacingDots, strip.height()), read);
}

void Typesetter::emitLine(const Bitmap& dots, int advanceDots, const std::string& text)
{
    if (!m_page) {
        m_paper.print(dots, advanceDots, text);
        return;
    }
    if (m_down >= m_page->depthDots()) {
        if (dots.height() > 0) {
            remark({phrases::belowArea, {text}});
        }
        return;
    }
    if (dots.height() > 0 && m_page->place(dots, 0, m_down, text) > 0) {
        remark({phrases::cutOffAtEdge, {text}});
    }
    m_down += advanceDots;
}

void Typesetter::throwAway(const Message& who)
{
    if (!m_line.empty()) {
        remark({phrases::lineThrownAway, {who, std::to_string(m_lineBegan), m_line.text(0)}});
    }
    if (m_page && m_page->isUnprinted()) {
        remark({phrases::pageThrownAway, {who}});
    }
    m_line.clear();
    m_pen = 0;
    m_fullLinePrinted = false;
}

// ------------------------------------------------------------------ symbols and graphics

void Typesetter::printSymbol(const PrintedSymbol& symbol, Foot foot)
{
    const Bitmap& dots = symbol.dots;
    if (m_page) {
        const int top =
            foot == Foot::OnLine ? m_down + cellOf(Font::A).heightDots - dots.height() : m_down;
        if (m_page->place(dots, m_pen, top, symbol.caption.in(m_language)) > 0) {
            remark({phrases::cutOffAtEdge, {symbol.caption}});
        }
        m_pen += dots.width();
        return;
    }
    endLineBefore(phrases::symbol);
    const int left = aligned(dots.width());
    Bitmap strip(m_model.widthDots(), dots.height());
    strip.draw(dots, left, 0);
    const std::string indent(static_cast<std::size_t>(left / cellOf(Font::A).widthDots), ' ');
    m_paper.print(strip, dots.height(), indent + symbol.caption.in(m_language));
}

void Typesetter::printCode(const PrintedSymbol& code)
{
    if (!code.problem.empty()) {
        remark(code.problem);
        return note(code.problem);
    }
    printSymbol(code, m_model.symbolsStandOnLine ? Foot::OnLine : Foot::Below);
}

void Typesetter::printQrCode(const Command& command)
{
    const auto code = qrCodeOf(command, m_settings, roomDots());
    return code ? printCode(*code) : remark(phrases::outOfRange);
}

void Typesetter::printGraphic(const Command& command)
{
    const auto graphic = graphicOf(command, m_graphics);
    if (!graphic) {
        return remark(phrases::outOfRange);
    }
    if (!graphic->problem.empty()) {
        return remark(graphic->problem);
    }
    printSymbol(*graphic, Foot::Below);
}

void Typesetter::printRaster(const Command& command)
{
    const std::vector<PrintedSymbol> strips = rasterOf(command, roomDots());
    if (strips.empty()) {
        return remark(phrases::outOfRange);
    }
    for (const PrintedSymbol& strip : strips) {
        printSymbol(strip, Foot::Below);
    }
}

// ------------------------------------------------------------------ page mode

void Typesetter::pageCommand(const Command& command)
{
    switch (command.op) {
    case Op::PageMode:
        return enterPage();
    case Op::PageDirection:
        if (command.argOrDigit(0) > 3) {
            return remark(phrases::outOfRange);
        }
        m_settings.pageDirection = static_cast<Page::Direction>(command.argOrDigit(0));
        break;
    case Op::PageArea:
        m_settings.pageArea =
            Page::Area{static_cast<int>(command.arg16(0)), static_cast<int>(command.arg16(2)),
                       static_cast<int>(command.arg16(4)), static_cast<int>(command.arg16(6))};
        break;
    default:
        if (!m_page) {
            return remark(phrases::onlyInPageMode);
        }
        if (command.op == Op::StandardMode) {
            throwAway(phrases::standardMode);
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
            return remark(phrases::outsidePage);
        }
        m_pen = m_down = 0;
    }
}

void Typesetter::enterPage()
{
    if (m_page) {
        return;
    }
    endLineBefore(phrases::pageMode);
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
        return printCode(barcodeOf(command, m_settings, m_model, m_glyphs, roomDots()));
    case Op::QrPrint:
    case Op::QrAltPrint:
    case Op::QrBemaPrint:
        return printQrCode(command);
    case Op::StoredGraphic:
        return printGraphic(command);
    case Op::RasterImage:
        return printRaster(command);
    case Op::Cut:
        if (m_page) {
            return remark(phrases::inPageMode);
        }
        endLineBefore(phrases::cutCommand);
        if (command.arg(0) >= 'A') { // these forms feed first
            m_paper.feed(static_cast<int>(command.arg(1)));
        }
        return m_paper.cut();
    case Op::Drawer:
        if (command.argOrDigit(0) > 1) {
            return remark(phrases::outOfRange);
        }
        return note(
            {phrases::drawer, {std::to_string(command.argOrDigit(0)), number(1, 2), number(2, 2)}});
    case Op::Buzzer:
        return note({phrases::buzzer, {number(0, 1), number(1, 100), number(2, 100)}});
    default:
        return; // nothing that shows on paper; the list of commands has it
    }
}

} // namespace virtual_printer
