/** \file command_list.h
 *  Commands as text, one line each, made for reading and for diffs.
 */
#ifndef Q7_VIRTUAL_PRINTER_COMMAND_LIST_H
#define Q7_VIRTUAL_PRINTER_COMMAND_LIST_H

#include "command.h"

namespace virtual_printer
{

/** The command's line without a line end: its offset, its head in hexadecimal, its name with its
 *  arguments in decimal, its effect and its data, such as
 *
 *      "      12  1B 61 01                 ESC a 1     alignment"
 *
 *  Text stands alone in quotes; images show their size instead of their data. */
std::string listLine(const Command& command);

/** A line about the command at that offset: what the printer made of it that a reader of the bytes
 *  would not expect. */
std::string remarkLine(std::uint64_t offset, std::string_view remark);

} // namespace virtual_printer

#endif
