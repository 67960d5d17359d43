// What a receipt printer is told: one typed command per printer command or run of text.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace virtual_printer
{

/** What a command does. Names follow the effect; the table in command_parser.cpp has the bytes. */
enum class Op : std::uint8_t {
    Text,
    LineFeed,
    CarriageReturn,
    Tab,
    FormFeed,
    CancelPage,
    Reset,
    PrintMode,
    Font,
    Emphasis,
    DoubleStrike,
    Underline,
    Reverse,
    CharacterSize,
    CharacterSpacing,
    CodeTable,
    Alignment,
    DefaultLineSpacing,
    LineSpacing,
    FeedLines,
    FeedDots,
    TabStops,
    AbsolutePosition,
    RelativePosition,
    LeftMargin,
    PrintWidth,
    PageMode,
    StandardMode,
    PrintPage,
    PageArea,
    PageDirection,
    PageVerticalPosition,
    PageVerticalMove,
    StoredGraphic,
    RasterImage,
    BarcodeHeight,
    BarcodeModuleWidth,
    BarcodeTextPosition,
    BarcodeTextFont,
    Barcode,
    QrModel,
    QrModuleSize,
    QrLevel,
    QrStore,
    QrPrint,
    QrAltSettings, // ORLA-K's dialect: module size
    QrAltPrint,    // ORLA-K's dialect: level and data, ended by a zero byte
    QrBemaPrint,   // SORBE's dialect: size, level, length and data in one command
    Cut,
    Drawer,
    Buzzer,
    StatusQuery,
    IdentificationQuery,
    TildeIdentification, // ~HI, the identification query of TESMO
    AutomaticStatus,
    NoEffect,  // known, of known length, and without effect on this printer
    Unknown,   // not a command of this printer
    Malformed, // a command with an argument outside its range; ends where the argument does
    Truncated, // the bytes ended in the middle of it
};

/** One command or run of text, with its place in the byte stream. */
struct Command {
    Op op = Op::Unknown;
    std::uint64_t offset = 0; // of its first byte, from the start of the connection
    std::string bytes;        // all of it, data included
    std::size_t argsAt = 0;   // where its argument bytes begin
    std::size_t dataAt = 0;   // where its data of variable length begins
    std::size_t dataSize = 0; // how long that is, an ending zero byte not counted

    /** The argument byte of that index; 0 beyond the last. */
    unsigned arg(std::size_t index) const
    {
        return argsAt + index < bytes.size() ? static_cast<unsigned char>(bytes[argsAt + index])
                                             : 0U;
    }
    /** The same of an argument that may be a number or its digit: 0 to 9 or "0" to "9". */
    unsigned argOrDigit(std::size_t index) const
    {
        const unsigned value = arg(index);
        return value >= 0x30 && value <= 0x39 ? value - 0x30 : value;
    }
    /** Two argument bytes, low byte first. */
    unsigned arg16(std::size_t index) const { return arg(index) + 256U * arg(index + 1); }
    std::string_view data() const
    {
        return dataAt < bytes.size() ? std::string_view(bytes).substr(dataAt, dataSize)
                                     : std::string_view();
    }
};

} // namespace virtual_printer
