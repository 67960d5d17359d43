// The commands of this printer: their bytes, how their ends are found, and their names.
#pragma once

#include "command.h"
#include "message.h"

#include <array>

namespace virtual_printer
{

/** How the end of a command is found. */
enum class Shape : std::uint8_t {
    Fixed,          // `count` argument bytes
    Function,       // a letter, a 16-bit length, that many bytes
    LongFunction,   // a letter, a 32-bit length, that many bytes
    ZeroEnded,      // up to a zero byte, `count` bytes at most
    Cut,            // a mode, and for some modes a feed
    Barcode,        // a symbology that decides the rest
    ColumnImage,    // ESC *: a mode and a count of columns
    RasterImage,    // GS v 0: bytes per row and rows
    DownloadImage,  // GS *: tiles of 8 bytes
    RealTimeStatus, // DLE EOT: some kinds carry one byte more
    RealTimeAction, // DLE DC4: the function decides the rest
};

struct CommandSpec {
    unsigned char lead; // 0 for a control code that stands alone
    unsigned char code;
    Op op;
    Shape shape;
    std::size_t count;
    std::string_view name;
    Phrase effect;
};

/** Functions of ESC ( and GS ( that this printer knows, by the bytes behind the length. */
struct FunctionSpec {
    unsigned char lead;
    unsigned char letter;
    Op op;
    std::string_view head; // the first data bytes, which name the function
    std::size_t length;    // of the whole data; 0 for any
    Phrase effect;
};
extern const std::array<FunctionSpec, 7> functions;

/** Whether the byte leads a command of two and more bytes: DLE, ESC, FS or GS. */
bool leadsCommand(unsigned char byte);

/** The command with that lead byte (0: a control code that stands alone); null when there is none. */
const CommandSpec* findCommand(unsigned char lead, unsigned char code);

/** The identification query of label printers, three characters to any other. */
constexpr std::string_view tildeQuery = "~HI";

/** The command's name in the printer's manual ("ESC a"), and its effect ("alignment"). Empty for
 *  text and for what is not a command. */
struct CommandName {
    std::string name;
    Phrase effect;
};
CommandName nameOf(const Command& command);

} // namespace virtual_printer
