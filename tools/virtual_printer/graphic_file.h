/** \file graphic_file.h
 *  Images for the printer's non-volatile memory.
 */
#ifndef Q7_VIRTUAL_PRINTER_GRAPHIC_FILE_H
#define Q7_VIRTUAL_PRINTER_GRAPHIC_FILE_H

#include "bitmap.h"

#include <string>

namespace virtual_printer
{

/** Reads an image file, a dot per pixel: what is darker than middle grey is black, what is
 *  transparent is white. Throws std::runtime_error. */
Bitmap readGraphic(const std::string& path);

} // namespace virtual_printer

#endif
