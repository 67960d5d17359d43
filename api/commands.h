// The byte strings that make up the printers' ESC/POS dialect.
#pragma once

#include <QByteArray>

namespace q7
{

/** The bytes of a literal, zeros included, without its terminator. */
template <std::size_t N> QByteArray commandBytes(const char (&literal)[N])
{
    return QByteArray::fromRawData(literal, static_cast<int>(N) - 1);
}

inline const QByteArray CMD_INIT = commandBytes("\x1B\x40");                     // ESC @
inline const QByteArray CMD_CHAR_SIZE = commandBytes("\x1D\x21");                // GS !
inline const QByteArray CMD_BOLD_ON = commandBytes("\x1B\x45\x01");              // ESC E
inline const QByteArray CMD_BOLD_OFF = commandBytes("\x1B\x45\x00");             // ESC E
inline const QByteArray CMD_UNDERLINE_ON = commandBytes("\x1B\x21\x80");         // ESC !
inline const QByteArray CMD_FONT_B_ON = commandBytes("\x1B\x21\x01");            // ESC !
inline const QByteArray CMD_MODE_RESET = commandBytes("\x1B\x21\x00");           // ESC !
inline const QByteArray CMD_REVERSE_ON = commandBytes("\x1D\x42\x01");           // GS B
inline const QByteArray CMD_REVERSE_OFF = commandBytes("\x1D\x42\x00");          // GS B
inline const QByteArray CMD_LINE_SPACING_40 = commandBytes("\x1B\x33\x28");      // ESC 3
inline const QByteArray CMD_LINE_SPACING = commandBytes("\x1B\x33");             // ESC 3
inline const QByteArray CMD_ALIGN = commandBytes("\x1B\x61");                    // ESC a
inline const QByteArray CMD_CODE_TABLE = commandBytes("\x1B\x74");               // ESC t
inline const QByteArray CMD_CUT_FULL = commandBytes("\x1D\x56\x00");             // GS V
inline const QByteArray CMD_BEEP = commandBytes("\x1B\x28\x41\x05\x00\x61\x64"); // ESC ( A
inline const QByteArray CMD_BARCODE_HEIGHT = commandBytes("\x1D\x68");           // GS h
inline const QByteArray CMD_BARCODE_WIDTH = commandBytes("\x1D\x77");            // GS w
inline const QByteArray CMD_BARCODE_HRI = commandBytes("\x1D\x48");              // GS H
inline const QByteArray CMD_HRI_NONE = commandBytes("\x1D\x48\x00");             // GS H
inline const QByteArray CMD_BARCODE = commandBytes("\x1D\x6B");                  // GS k

// GS ( k, functions 169, 167, 180 and 181
inline const QByteArray CMD_QR_ERROR_LEVEL = commandBytes("\x1D\x28\x6B\x03\x00\x31\x45");
inline const QByteArray CMD_QR_MODULE_SIZE = commandBytes("\x1D\x28\x6B\x03\x00\x31\x43");
inline const QByteArray CMD_QR_STORE = commandBytes("\x1D\x28\x6B"); // pL pH 31 50 30 follow
inline const QByteArray CMD_QR_PRINT = commandBytes("\x1D\x28\x6B\x03\x00\x31\x51\x30");

// The second QR dialect: GS o sets the symbol up (fourth byte: module size), GS k 11 opens its data
// (fourth byte: error correction letter).
inline const QByteArray CMD_QR_ALT_HEAD = commandBytes("\x1D\x6F\x00\x03\x00\x02");
inline const QByteArray CMD_QR_ALT_DATA = commandBytes("\x1D\x6B\x0B\x48\x41\x2C");
// The other maker's QR dialect, GS k Q.
inline const QByteArray CMD_QR_BEMA = commandBytes("\x1D\x6B\x51\x00");

inline const QByteArray CMD_DRAWER_DEFAULT = commandBytes("\x1B\x70\x30\x64\x64"); // ESC p
inline const QByteArray CMD_DRAWER = commandBytes("\x1B\x70");                     // ESC p
inline const QByteArray CMD_LF = commandBytes("\x0A");                             // LF
inline const QByteArray CMD_AUTO_STATUS_OFF = commandBytes("\x1D\x61\x00");        // GS a
inline const QByteArray CMD_STATUS_QUERY = commandBytes("\x10\x04\x01"); // DLE EOT n, n replaced
inline const QByteArray CMD_NV_GRAPHICS_PRINT =
    commandBytes("\x1D\x28\x4C\x06\x00\x30\x45");                           // GS ( L function 69
inline const QByteArray CMD_PAGE_PRINT = commandBytes("\x1B\x0C");          // ESC FF
inline const QByteArray CMD_FORM_FEED = commandBytes("\x0C");               // FF
inline const QByteArray CMD_PAGE_MODE = commandBytes("\x1B\x4C");           // ESC L
inline const QByteArray CMD_STANDARD_MODE = commandBytes("\x1B\x53");       // ESC S
inline const QByteArray CMD_DIRECTION_0 = commandBytes("\x1B\x54\x00");     // ESC T
inline const QByteArray CMD_DIRECTION_1 = commandBytes("\x1B\x54\x01");     // ESC T
inline const QByteArray CMD_DIRECTION_2 = commandBytes("\x1B\x54\x02");     // ESC T
inline const QByteArray CMD_DIRECTION_3 = commandBytes("\x1B\x54\x03");     // ESC T
inline const QByteArray CMD_VERTICAL_POSITION = commandBytes("\x1D\x24");   // GS $
inline const QByteArray CMD_HORIZONTAL_POSITION = commandBytes("\x1B\x24"); // ESC $
inline const QByteArray CMD_CANCEL = commandBytes("\x18");                  // CAN
inline const QByteArray CMD_ESC = commandBytes("\x1B");                     // ESC alone
inline const QByteArray CMD_PRINT_AREA = commandBytes("\x1B\x57");          // ESC W
inline const QByteArray CMD_PRINTER_ID = commandBytes("\x1D\x49");          // GS I

/** An argument as one byte: its low eight bits. */
inline QByteArray argumentByte(int value)
{
    return QByteArray(1, static_cast<char>(value));
}

/** A two-byte argument: the low eight bits, then the value divided by 256, rounded toward zero. */
inline QByteArray argumentWord(int value)
{
    return argumentByte(value) + argumentByte(value / 256);
}

/** ESC W with its arguments, in dots. */
inline QByteArray printArea(int xDots, int yDots, int widthDots, int heightDots)
{
    return CMD_PRINT_AREA + argumentWord(xDots) + argumentWord(yDots) + argumentWord(widthDots) +
           argumentWord(heightDots);
}

} // namespace q7
