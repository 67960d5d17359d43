// The printer between its command buffer and its paper: commands in, printed lines out.
#pragma once

#include "paper.h"
#include "printed_symbol.h"
#include "text_line.h"

#include <functional>

namespace virtual_printer
{

class Typesetter
{
public:
    /** Told what the printer did that the bytes alone do not show: what a reset threw away, what was
     *  ignored, what did not fit. offset: of the command that caused it. */
    using Remarks = std::function<void(std::uint64_t offset, std::string_view remark)>;

    /** glyphs, graphics and paper must outlive the typesetter. */
    Typesetter(const Model& model, Glyphs& glyphs, const Graphics& graphics, Paper& paper,
               Remarks remarks, Language language = Language::English);

    void command(const Command& command);
    /** The connection has ended: what was not printed by then is remarked on. */
    void finish(std::uint64_t offset);

private:
    bool set(const Command& command);
    void pageCommand(const Command& command);
    void move(const Command& command);
    void act(const Command& command);
    void reset();

    void text(const Command& command);
    void character(unsigned char byte, std::uint64_t offset);
    void tab();
    void lineFeed();
    void feedLines(int count);
    void feedDots(int dots);
    void flushLine(int spacingDots);
    void flushIfBegun();
    void endLineBefore(const Message& what);
    void emitLine(const Bitmap& dots, int advanceDots, const std::string& text);
    int aligned(int widthDots) const;

    void printCode(const PrintedSymbol& code);
    void printQrCode(const Command& command);
    void printGraphic(const Command& command);
    void printRaster(const Command& command);
    enum class Foot { OnLine, Below };
    void printSymbol(const PrintedSymbol& symbol, Foot foot);

    void enterPage();
    void printPage();
    void leavePage();
    void throwAway(const Message& who);
    void remark(const Message& message) const { m_remarks(m_at, message.in(m_language)); }
    void note(const Message& message) { m_paper.note(message.in(m_language)); }
    int leftMargin() const;
    int lineDots() const;
    int roomDots() const;

    Model m_model;
    Glyphs& m_glyphs;
    const Graphics& m_graphics;
    Paper& m_paper;
    Remarks m_remarks;
    Language m_language;

    std::uint64_t m_at = 0;
    Settings m_settings;
    TextLine m_line;
    std::uint64_t m_lineBegan = 0;
    int m_pen = 0;
    bool m_fullLinePrinted = false;
    std::optional<Page> m_page;
    int m_down = 0; // vertical position in the page's area
};

} // namespace virtual_printer
