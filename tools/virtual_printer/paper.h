// What the printing mechanism does to the paper.
#pragma once

#include "bitmap.h"

#include <string_view>

namespace virtual_printer
{

class Paper
{
public:
    virtual ~Paper() = default;
    Paper() = default;
    Paper(const Paper&) = delete;
    Paper& operator=(const Paper&) = delete;

    /** Prints dots across the whole width, then feeds.
     *  advanceDots: how far in all, at least the height of the dots.
     *  text: the same as UTF-8 text, one or more lines without the last line end. */
    virtual void print(const Bitmap& dots, int advanceDots, std::string_view text) = 0;
    virtual void feed(int dots) = 0;
    virtual void cut() = 0;
    /** Something that leaves no dots (drawer, buzzer, a symbol that did not fit). UTF-8. */
    virtual void note(std::string_view text) = 0;
};

} // namespace virtual_printer
