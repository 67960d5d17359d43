// The printer between its command buffer and its paper: commands in, printed lines out.
#pragma once

#include "code_table.h"
#include "device.h"
#include "glyphs.h"
#include "page.h"
#include "paper.h"
#include "symbols.h"

#include <functional>
#include <map>
#include <optional>

namespace virtual_printer
{

/** Stored graphics by their two-character key. */
using Graphics = std::map<std::string, Bitmap>;

class Typesetter
{
public:
    /** Told what the printer did that the bytes alone do not show: what a reset threw away, what was
     *  ignored, what did not fit. offset: of the command that caused it. */
    using Remarks = std::function<void(std::uint64_t offset, std::string_view remark)>;

    /** glyphs, graphics and paper must outlive the typesetter. */
    Typesetter(const Model& model, Glyphs& glyphs, const Graphics& graphics, Paper& paper,
               Remarks remarks);

    void command(const Command& command);
    /** The connection has ended: what was not printed by then is remarked on. */
    void finish(std::uint64_t offset);

private:
    struct Style {
        Font font = Font::A;
        bool emphasised = false;
        bool doubleStrike = false;
        bool reverse = false;
        int underlineDots = 0;
        int widthFactor = 1;
        int heightFactor = 1;

        int widthDots() const { return cellOf(font).widthDots * widthFactor; }
        int heightDots() const { return cellOf(font).heightDots * heightFactor; }
    };
    /** What ESC @ sets back. */
    struct Settings {
        Style style;
        unsigned codeTable = 0;
        unsigned alignment = 0;
        int lineSpacing = 30;
        int characterSpacing = 0;
        int leftMargin = 0;
        std::optional<int> printWidth;
        std::string tabColumns;
        int barcodeTextPosition = 0;
        Font barcodeTextFont = Font::A;
        int barcodeHeight = 162;
        int barcodeModule = 3;
        int qrModule = 3;
        QrLevel qrLevel = QrLevel::L;
        std::string qrData;
        int qrAltModule = 3;
        // Told in standard mode too, they count from the next ESC L on.
        std::optional<Page::Area> pageArea;
        Page::Direction pageDirection = Page::Direction::RightTopLeft;
    };
    struct PlacedGlyph {
        char16_t character;
        Style style;
        int x;
    };

    void setStyle(const Command& command);
    void setLayout(const Command& command);
    void setSymbol(const Command& command);
    void setPage(const Command& command);
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
    void endLineBefore(std::string_view what);
    void emitLine(const Bitmap& dots, int advanceDots, const std::string& text);
    void drawGlyph(Bitmap& strip, const PlacedGlyph& glyph, int left);
    std::string lineText(int leftDots) const;
    int aligned(int widthDots) const;

    void printBarcode(const Command& command);
    Bitmap withText(const Symbol& barcode);
    void printQr(std::string_view data, QrLevel level, int moduleDots);
    void printGraphic(const Command& command);
    void printRaster(const Command& command);
    enum class Foot { OnLine, Below };
    void printSymbol(const Bitmap& dots, const std::string& caption, Foot foot);
    void refuse(const std::string& what);

    void enterPage();
    void printPage();
    void leavePage();
    void throwAway(std::string_view who);
    void remark(std::string_view text) const { m_remarks(m_at, text); }
    int lineDots() const;
    int roomDots() const;

    Model m_model;
    Glyphs& m_glyphs;
    const Graphics& m_graphics;
    Paper& m_paper;
    Remarks m_remarks;

    std::uint64_t m_at = 0;
    Settings m_settings;
    std::vector<PlacedGlyph> m_line;
    std::uint64_t m_lineBegan = 0;
    int m_pen = 0;
    bool m_fullLinePrinted = false;
    std::optional<Page> m_page;
    int m_down = 0; // vertical position in the page's area
};

} // namespace virtual_printer
