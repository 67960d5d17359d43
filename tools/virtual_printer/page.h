/** \file page.h
 *  Page mode: areas of a page, each written in one of four directions, printed all at once.
 */
#ifndef Q7_VIRTUAL_PRINTER_PAGE_H
#define Q7_VIRTUAL_PRINTER_PAGE_H

#include "bitmap.h"

#include <string>
#include <string_view>
#include <vector>

namespace virtual_printer
{

/** How high a page can be; the area is that high until ESC W sets another. */
constexpr int kPageHeightDots = 1662;

class Page
{
public:
    struct Area {
        int x;
        int y;
        int width;
        int height;
    };
    /** Writing directions; the print position starts at the corner named second. */
    enum class Direction : std::uint8_t {
        RightTopLeft,
        UpBottomLeft,
        LeftBottomRight,
        DownTopRight
    };

    explicit Page(int widthDots);

    /** Cuts the area to the page; false when nothing of it lies there. */
    bool setArea(const Area& area);
    void setDirection(Direction direction) { direction_ = direction; }
    [[nodiscard]] Direction direction() const { return direction_; }
    [[nodiscard]] int areaLeft() const { return area_.x; }

    /** Length of a line in the area, and room for lines, as the direction sees them. */
    [[nodiscard]] int lineDots() const { return sideways() ? area_.height : area_.width; }
    [[nodiscard]] int depthDots() const { return sideways() ? area_.width : area_.height; }

    /** Draws at a position of the area, as the direction sees it. Returns how many black dots fell
     *  outside the area. text: what it reads, UTF-8. */
    int place(const Bitmap& dots, int along, int down, std::string_view text);
    void clearArea();

    /** The page down to the foot of the lowest area, and its text from top to bottom. */
    [[nodiscard]] Bitmap dots() const;
    [[nodiscard]] std::string text() const;
    /** Whether something was drawn since the page was made, cleared or printed. */
    [[nodiscard]] bool isUnprinted() const { return unprinted_; }
    void markPrinted() { unprinted_ = false; }

private:
    struct Point {
        int x;
        int y;
    };
    struct PlacedText {
        Point at;
        std::string text;
    };
    [[nodiscard]] bool sideways() const
    {
        return direction_ == Direction::UpBottomLeft || direction_ == Direction::DownTopRight;
    }
    [[nodiscard]] Point onPage(int along, int down) const;

    Bitmap dots_;
    Area area_;
    Direction direction_ = Direction::RightTopLeft;
    int heightDots_ = 0; /**< foot of the lowest area; 0 while none was set */
    bool unprinted_ = false;
    std::vector<PlacedText> texts_;
};

} // namespace virtual_printer

#endif
