// The byte strings that make up the printers' ESC/POS dialect.
#pragma once

#include "printer_bytes.h"

#include <string>

namespace q7
{

inline constexpr Bytes CMD_INIT = "\x1B\x40";                     // ESC @
inline constexpr Bytes CMD_CHAR_SIZE = "\x1D\x21";                // GS !
inline constexpr Bytes CMD_BOLD_ON = "\x1B\x45\x01";              // ESC E
inline constexpr Bytes CMD_BOLD_OFF = "\x1B\x45\x00";             // ESC E
inline constexpr Bytes CMD_UNDERLINE_ON = "\x1B\x21\x80";         // ESC !
inline constexpr Bytes CMD_FONT_B_ON = "\x1B\x21\x01";            // ESC !
inline constexpr Bytes CMD_MODE_RESET = "\x1B\x21\x00";           // ESC !
inline constexpr Bytes CMD_REVERSE_ON = "\x1D\x42\x01";           // GS B
inline constexpr Bytes CMD_REVERSE_OFF = "\x1D\x42\x00";          // GS B
inline constexpr Bytes CMD_LINE_SPACING_40 = "\x1B\x33\x28";      // ESC 3
inline constexpr Bytes CMD_LINE_SPACING = "\x1B\x33";             // ESC 3
inline constexpr Bytes CMD_ALIGN = "\x1B\x61";                    // ESC a
inline constexpr Bytes CMD_CODE_TABLE = "\x1B\x74";               // ESC t
inline constexpr Bytes CMD_CUT_FULL = "\x1D\x56\x00";             // GS V
inline constexpr Bytes CMD_BEEP = "\x1B\x28\x41\x05\x00\x61\x64"; // ESC ( A
inline constexpr Bytes CMD_BARCODE_HEIGHT = "\x1D\x68";           // GS h
inline constexpr Bytes CMD_BARCODE_WIDTH = "\x1D\x77";            // GS w
inline constexpr Bytes CMD_BARCODE_HRI = "\x1D\x48";              // GS H
inline constexpr Bytes CMD_HRI_NONE = "\x1D\x48\x00";             // GS H
inline constexpr Bytes CMD_BARCODE = "\x1D\x6B";                  // GS k

// GS ( k, functions 169, 167, 180 and 181
inline constexpr Bytes CMD_QR_ERROR_LEVEL = "\x1D\x28\x6B\x03\x00\x31\x45";
inline constexpr Bytes CMD_QR_MODULE_SIZE = "\x1D\x28\x6B\x03\x00\x31\x43";
inline constexpr Bytes CMD_QR_STORE = "\x1D\x28\x6B"; // pL pH 31 50 30 follow
inline constexpr Bytes CMD_QR_PRINT = "\x1D\x28\x6B\x03\x00\x31\x51\x30";

// The second QR dialect: GS o sets the symbol up (fourth byte: module size), GS k 11 opens its data
// (fourth byte: error correction letter).
inline constexpr Bytes CMD_QR_ALT_HEAD = "\x1D\x6F\x00\x03\x00\x02";
inline constexpr Bytes CMD_QR_ALT_DATA = "\x1D\x6B\x0B\x48\x41\x2C";
// The other maker's QR dialect, GS k Q.
inline constexpr Bytes CMD_QR_BEMA = "\x1D\x6B\x51\x00";

inline constexpr Bytes CMD_DRAWER_DEFAULT = "\x1B\x70\x30\x64\x64"; // ESC p
inline constexpr Bytes CMD_DRAWER = "\x1B\x70";                     // ESC p
inline constexpr Bytes CMD_LF = "\x0A";                             // LF
inline constexpr Bytes CMD_AUTO_STATUS_OFF = "\x1D\x61\x00";        // GS a
inline constexpr Bytes CMD_STATUS_QUERY = "\x10\x04\x01";           // DLE EOT n, n replaced
inline constexpr Bytes CMD_NV_GRAPHICS_PRINT = "\x1D\x28\x4C\x06\x00\x30\x45"; // GS ( L function 69
inline constexpr Bytes CMD_PAGE_PRINT = "\x1B\x0C";                            // ESC FF
inline constexpr Bytes CMD_FORM_FEED = "\x0C";                                 // FF
inline constexpr Bytes CMD_PAGE_MODE = "\x1B\x4C";                             // ESC L
inline constexpr Bytes CMD_STANDARD_MODE = "\x1B\x53";                         // ESC S
inline constexpr Bytes CMD_DIRECTION_0 = "\x1B\x54\x00";                       // ESC T
inline constexpr Bytes CMD_DIRECTION_1 = "\x1B\x54\x01";                       // ESC T
inline constexpr Bytes CMD_DIRECTION_2 = "\x1B\x54\x02";                       // ESC T
inline constexpr Bytes CMD_DIRECTION_3 = "\x1B\x54\x03";                       // ESC T
inline constexpr Bytes CMD_VERTICAL_POSITION = "\x1D\x24";                     // GS $
inline constexpr Bytes CMD_HORIZONTAL_POSITION = "\x1B\x24";                   // ESC $
inline constexpr Bytes CMD_CANCEL = "\x18";                                    // CAN
inline constexpr Bytes CMD_ESC = "\x1B";                                       // ESC alone
inline constexpr Bytes CMD_PRINT_AREA = "\x1B\x57";                            // ESC W
inline constexpr Bytes CMD_PRINTER_ID = "\x1D\x49";                            // GS I

/** An argument as one byte: its low eight bits. */
inline std::string argumentByte(int value)
{
    return std::string(1, static_cast<char>(value));
}

/** A two-byte argument: the low eight bits, then the value divided by 256, rounded toward zero. */
inline std::string argumentWord(int value)
{
    return argumentByte(value) + argumentByte(value / 256);
}

/** ESC W with its arguments, in dots. */
inline std::string printArea(int xDots, int yDots, int widthDots, int heightDots)
{
    return CMD_PRINT_AREA + argumentWord(xDots) + argumentWord(yDots) + argumentWord(widthDots) +
           argumentWord(heightDots);
}

} // namespace q7
