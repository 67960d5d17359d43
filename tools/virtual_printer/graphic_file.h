// Images for the printer's non-volatile memory.
#pragma once

#include "bitmap.h"

#include <string>

namespace virtual_printer
{

/** Reads an image file, a dot per pixel: what is darker than middle grey is black, what is
 *  transparent is white. At most 8192 by 2304 dots. Throws std::runtime_error. */
Bitmap readGraphic(const std::string& path);

} // namespace virtual_printer
