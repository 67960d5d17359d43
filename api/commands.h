// The byte strings that make up the printers' ESC/POS dialect.
#pragma once

#include <QByteArray>

namespace q7
{

// Literals whose bytes outlive all destructors: a program may print from one of its own at its end.

inline const QByteArray CMD_INIT = QByteArrayLiteral("\x1B\x40");                     // ESC @
inline const QByteArray CMD_CHAR_SIZE = QByteArrayLiteral("\x1D\x21");                // GS !
inline const QByteArray CMD_BOLD_ON = QByteArrayLiteral("\x1B\x45\x01");              // ESC E
inline const QByteArray CMD_BOLD_OFF = QByteArrayLiteral("\x1B\x45\x00");             // ESC E
inline const QByteArray CMD_UNDERLINE_ON = QByteArrayLiteral("\x1B\x21\x80");         // ESC !
inline const QByteArray CMD_FONT_B_ON = QByteArrayLiteral("\x1B\x21\x01");            // ESC !
inline const QByteArray CMD_MODE_RESET = QByteArrayLiteral("\x1B\x21\x00");           // ESC !
inline const QByteArray CMD_REVERSE_ON = QByteArrayLiteral("\x1D\x42\x01");           // GS B
inline const QByteArray CMD_REVERSE_OFF = QByteArrayLiteral("\x1D\x42\x00");          // GS B
inline const QByteArray CMD_LINE_SPACING_40 = QByteArrayLiteral("\x1B\x33\x28");      // ESC 3
inline const QByteArray CMD_LINE_SPACING = QByteArrayLiteral("\x1B\x33");             // ESC 3
inline const QByteArray CMD_ALIGN = QByteArrayLiteral("\x1B\x61");                    // ESC a
inline const QByteArray CMD_CODE_TABLE = QByteArrayLiteral("\x1B\x74");               // ESC t
inline const QByteArray CMD_CUT_FULL = QByteArrayLiteral("\x1D\x56\x00");             // GS V
inline const QByteArray CMD_BEEP = QByteArrayLiteral("\x1B\x28\x41\x05\x00\x61\x64"); // ESC ( A
inline const QByteArray CMD_BARCODE_HEIGHT = QByteArrayLiteral("\x1D\x68");           // GS h
inline const QByteArray CMD_BARCODE_WIDTH = QByteArrayLiteral("\x1D\x77");            // GS w
inline const QByteArray CMD_BARCODE_HRI = QByteArrayLiteral("\x1D\x48");              // GS H
inline const QByteArray CMD_HRI_NONE = QByteArrayLiteral("\x1D\x48\x00");             // GS H
inline const QByteArray CMD_BARCODE = QByteArrayLiteral("\x1D\x6B");                  // GS k

// GS ( k, functions 169, 167, 180 and 181
inline const QByteArray CMD_QR_ERROR_LEVEL = QByteArrayLiteral("\x1D\x28\x6B\x03\x00\x31\x45");
inline const QByteArray CMD_QR_MODULE_SIZE = QByteArrayLiteral("\x1D\x28\x6B\x03\x00\x31\x43");
inline const QByteArray CMD_QR_STORE = QByteArrayLiteral("\x1D\x28\x6B"); // pL pH 31 50 30 follow
inline const QByteArray CMD_QR_PRINT = QByteArrayLiteral("\x1D\x28\x6B\x03\x00\x31\x51\x30");

// The second QR dialect: GS o sets the symbol up (fourth byte: module size), GS k 11 opens its data
// (fourth byte: error correction letter).
inline const QByteArray CMD_QR_ALT_HEAD = QByteArrayLiteral("\x1D\x6F\x00\x03\x00\x02");
inline const QByteArray CMD_QR_ALT_DATA = QByteArrayLiteral("\x1D\x6B\x0B\x48\x41\x2C");
// The other maker's QR dialect, GS k Q.
inline const QByteArray CMD_QR_BEMA = QByteArrayLiteral("\x1D\x6B\x51\x00");

inline const QByteArray CMD_DRAWER_DEFAULT = QByteArrayLiteral("\x1B\x70\x30\x64\x64"); // ESC p
inline const QByteArray CMD_DRAWER = QByteArrayLiteral("\x1B\x70");                     // ESC p
inline const QByteArray CMD_LF = QByteArrayLiteral("\x0A");                             // LF
inline const QByteArray CMD_AUTO_STATUS_OFF = QByteArrayLiteral("\x1D\x61\x00");        // GS a
inline const QByteArray CMD_STATUS_QUERY =
    QByteArrayLiteral("\x10\x04\x01"); // DLE EOT n, n replaced
inline const QByteArray CMD_NV_GRAPHICS_PRINT =
    QByteArrayLiteral("\x1D\x28\x4C\x06\x00\x30\x45");                         // GS ( L function 69
inline const QByteArray CMD_PAGE_PRINT = QByteArrayLiteral("\x1B\x0C");        // ESC FF
inline const QByteArray CMD_FORM_FEED = QByteArrayLiteral("\x0C");             // FF
inline const QByteArray CMD_PAGE_MODE = QByteArrayLiteral("\x1B\x4C");         // ESC L
inline const QByteArray CMD_STANDARD_MODE = QByteArrayLiteral("\x1B\x53");     // ESC S
inline const QByteArray CMD_DIRECTION_0 = QByteArrayLiteral("\x1B\x54\x00");   // ESC T
inline const QByteArray CMD_DIRECTION_1 = QByteArrayLiteral("\x1B\x54\x01");   // ESC T
inline const QByteArray CMD_DIRECTION_2 = QByteArrayLiteral("\x1B\x54\x02");   // ESC T
inline const QByteArray CMD_DIRECTION_3 = QByteArrayLiteral("\x1B\x54\x03");   // ESC T
inline const QByteArray CMD_VERTICAL_POSITION = QByteArrayLiteral("\x1D\x24"); // GS $
inline const QByteArray CMD_HORIZONTAL_POSITION = QByteArrayLiteral("\x1B\x24"); // ESC $
inline const QByteArray CMD_CANCEL = QByteArrayLiteral("\x18");                  // CAN
inline const QByteArray CMD_ESC = QByteArrayLiteral("\x1B");                     // ESC alone
inline const QByteArray CMD_PRINT_AREA = QByteArrayLiteral("\x1B\x57");          // ESC W
inline const QByteArray CMD_PRINTER_ID = QByteArrayLiteral("\x1D\x49");          // GS I

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
