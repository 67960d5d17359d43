#include "page.h"

#include "glyphs.h"

#include <algorithm>

namespace virtual_printer
{
namespace
{

/** A page has no room for more lines that could be read; the dots are drawn all the same. */
constexpr std::size_t kMostTexts = 2000;

} // namespace

Page::Page(int widthDots)
    : dots_(widthDots, kPageHeightDots), area_{0, 0, widthDots, kPageHeightDots}
{
}

bool Page::setArea(const Area& area)
{
    if (area.x >= dots_.width() || area.y >= dots_.height() || area.width == 0 ||
        area.height == 0) {
        return false;
    }
    area_ = {area.x, area.y, std::min(area.width, dots_.width() - area.x),
             std::min(area.height, dots_.height() - area.y)};
    heightDots_ = std::max(heightDots_, area_.y + area_.height);
    return true;
}

Page::Point Page::onPage(int along, int down) const
{
    switch (direction_) {
    case Direction::UpBottomLeft:
        return {area_.x + down, area_.y + area_.height - 1 - along};
    case Direction::LeftBottomRight:
        return {area_.x + area_.width - 1 - along, area_.y + area_.height - 1 - down};
    case Direction::DownTopRight:
        return {area_.x + area_.width - 1 - down, area_.y + along};
    default:
        return {area_.x + along, area_.y + down};
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
                dots_.set(point.x, point.y);
            }
        }
    }
    unprinted_ = true;
    if (!text.empty() && texts_.size() < kMostTexts) {
        texts_.push_back({onPage(along, down), std::string(text)});
    }
    return outside;
}

void Page::clearArea()
{
    dots_.fill(area_.x, area_.y, area_.width, area_.height, false);
    unprinted_ = unprinted_ && !dots_.isBlank();
    texts_.erase(std::remove_if(texts_.begin(), texts_.end(),
                                [this](const PlacedText& text) {
                                    const int x = text.at.x - area_.x;
                                    const int y = text.at.y - area_.y;
                                    return x >= 0 && y >= 0 && x < area_.width && y < area_.height;
                                }),
                 texts_.end());
}

Bitmap Page::dots() const
{
    return dots_.top(heightDots_ > 0 ? heightDots_ : kPageHeightDots);
}

std::string Page::text() const
{
    std::vector<PlacedText> sorted = texts_;
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
