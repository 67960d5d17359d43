// The printer's character code tables (ESC t n).
#pragma once

#include <string>
#include <string_view>

namespace virtual_printer
{

constexpr unsigned codeTable437 = 0;
/** Latin-1 with the further letters of Windows 1252. */
constexpr unsigned codeTable1252 = 16;

/** Whether this printer has the table: 0 PC437, 2 PC850, 3 PC860, 16 Windows 1252, 19 PC858. */
bool hasCodeTable(unsigned table);

/** The character of a byte; a byte without one, and any byte of a table this printer does not have,
 *  reads as in PC437. Bytes below 0x20 give a blank. */
char16_t characterOf(unsigned table, unsigned char byte);

/** Appends a character of the basic plane as UTF-8. */
void appendUtf8(std::string& text, char16_t character);

/** The characters of UTF-8 text of the basic plane; what is none reads as "?". */
std::u16string fromUtf8(std::string_view text);

/** Text for people: Windows 1252 to UTF-8 in double quotes; what does not print, the quote and the
 *  backslash are written as \xNN, \" and \\. */
std::string quoted(std::string_view bytes);

} // namespace virtual_printer
