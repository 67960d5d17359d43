#include "page.h"

#include "glyphs.h"

#include <algorithm>

namespace virtual_printer
{
namespace
{

/** A page has no room for more lines that could be read; the dots are drawn all the same. */
constexpr std::size_t mostTexts = 2000;

} // namespace

Page::Page(int widthDots)
    : m_dots(widthDots, pageHeightDots), m_area{0, 0, widthDots, pageHeightDots}
{
}

bool Page::setArea(const Area& area)
{
    if (area.x >= m_dots.width() || area.y >= m_dots.height() || area.width == 0 ||
        area.height == 0) {
        return false;
    }
    m_area = {area.x, area.y, std::min(area.width, m_dots.width() - area.x),
              std::min(area.height, m_dots.height() - area.y)};
    m_heightDots = std::max(m_heightDots, m_area.y + m_area.height);
    return true;
}

Page::Point Page::onPage(int along, int down) const
{
    switch (m_direction) {
    case Direction::UpBottomLeft:
        return {m_area.x + down, m_area.y + m_area.height - 1 - along};
    case Direction::LeftBottomRight:
        return {m_area.x + m_area.width - 1 - along, m_area.y + m_area.height - 1 - down};
    case Direction::DownTopRight:
        return {m_area.x + m_area.width - 1 - down, m_area.y + along};
    default:
        return {m_area.x + along, m_area.y + down};
    }
}

int Page::place(const Bitmap& dots, int along, int down, std::string_view text)
{
    int outside = 0;
    for (int row = 0; row < dots.height(); ++row) {
        for (int column = 0; column < dots.width(); ++column) {
            if (!dots.at(column, row)) {
                continue;
            }
            const int u = along + column;
            const int v = down + row;
            if (u < 0 || v < 0 || u >= lineDots() || v >= depthDots()) {
                ++outside;
            } else {
                const Point point = onPage(u, v);
                m_dots.set(point.x, point.y);
            }
        }
    }
    m_unprinted = true;
    if (!text.empty() && m_texts.size() < mostTexts) {
        m_texts.push_back({onPage(along, down), std::string(text)});
    }
    return outside;
}

void Page::clearArea()
{
    m_dots.fill(m_area.x, m_area.y, m_area.width, m_area.height, false);
    m_unprinted = m_unprinted && !m_dots.isBlank();
    m_texts.erase(std::remove_if(m_texts.begin(), m_texts.end(),
                                 [this](const PlacedText& text) {
                                     const int x = text.at.x - m_area.x;
                                     const int y = text.at.y - m_area.y;
                                     return x >= 0 && y >= 0 && x < m_area.width &&
                                            y < m_area.height;
                                 }),
                  m_texts.end());
}

Bitmap Page::dots() const
{
    return m_dots.top(m_heightDots > 0 ? m_heightDots : pageHeightDots);
}

std::string Page::text() const
{
    std::vector<PlacedText> sorted = m_texts;
    std::stable_sort(sorted.begin(), sorted.end(), [](const PlacedText& a, const PlacedText& b) {
        return a.at.y != b.at.y ? a.at.y < b.at.y : a.at.x < b.at.x;
    });
    std::string lines;
    for (const PlacedText& line : sorted) {
        lines += lines.empty() ? "" : "\n";
        lines.append(static_cast<std::size_t>(std::max(line.at.x, 0) / cellOf(Font::B).widthDots),
                     ' ');
        lines += line.text;
    }
    return lines;
}

} // namespace virtual_printer
