// Commands as text, one line each, made for reading and for diffs.
#pragma once

#include "command.h"
#include "message.h"

namespace virtual_printer
{

/** Its name and its arguments in decimal, such as "ESC a 1"; text in quotes; "unknown",
 *  "malformed GS k" or "truncated ESC a" for what cannot be read. */
std::string nameWithArguments(const Command& command, Language language = Language::English);

/** The command's line without a line end: its offset, its head in hexadecimal, its name with its
 *  arguments, its effect and its data. Text stands alone; images show their size, not their data. */
std::string listLine(const Command& command, Language language = Language::English);

/** A line about the command at that offset: what the printer made of it that a reader of the bytes
 *  would not expect. */
std::string remarkLine(std::uint64_t offset, std::string_view remark);

} // namespace virtual_printer
