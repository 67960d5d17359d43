// Page mode: areas of a page, each written in one of four directions, printed all at once.
#pragma once

#include "bitmap.h"

#include <string>
#include <string_view>
#include <vector>

namespace virtual_printer
{

/** How high a page can be; the area is that high until ESC W sets another. */
constexpr int pageHeightDots = 1662;

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
    void setDirection(Direction direction) { m_direction = direction; }

    /** Length of a line in the area, and room for lines, as the direction sees them. */
    int lineDots() const { return sideways() ? m_area.height : m_area.width; }
    int depthDots() const { return sideways() ? m_area.width : m_area.height; }

    /** Draws at a position of the area, as the direction sees it. Returns how many black dots fell
     *  outside the area. text: what it reads, UTF-8. */
    int place(const Bitmap& dots, int along, int down, std::string_view text);
    void clearArea();

    /** The page down to the foot of the lowest area, and its text from top to bottom. */
    Bitmap dots() const;
    std::string text() const;
    /** Whether something was drawn since the page was made, cleared or printed. */
    bool isUnprinted() const { return m_unprinted; }
    void markPrinted() { m_unprinted = false; }

private:
    struct Point {
        int x;
        int y;
    };
    struct PlacedText {
        Point at;
        std::string text;
    };
    bool sideways() const
    {
        return m_direction == Direction::UpBottomLeft || m_direction == Direction::DownTopRight;
    }
    Point onPage(int along, int down) const;

    Bitmap m_dots;
    Area m_area;
    Direction m_direction = Direction::RightTopLeft;
    int m_heightDots = 0; // foot of the lowest area; 0 while none was set
    bool m_unprinted = false;
    std::vector<PlacedText> m_texts;
};

} // namespace virtual_printer
