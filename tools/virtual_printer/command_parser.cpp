#include "command_parser.h"

#include <algorithm>
#include <array>

namespace virtual_printer
{
namespace
{

constexpr unsigned char dle = 0x10;
constexpr unsigned char esc = 0x1B;
constexpr unsigned char fs = 0x1C;
constexpr unsigned char gs = 0x1D;

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

struct Spec {
    unsigned char lead; // 0 for a control code that stands alone
    unsigned char code;
    Op op;
    Shape shape;
    std::size_t count;
    std::string_view name;
    std::string_view effect;
};

constexpr Spec specs[] = {
    {0, 0x09, Op::Tab, Shape::Fixed, 0, "HT", "tab"},
    {0, 0x0A, Op::LineFeed, Shape::Fixed, 0, "LF", ""},
    {0, 0x0C, Op::FormFeed, Shape::Fixed, 0, "FF", "print page, standard mode"},
    {0, 0x0D, Op::CarriageReturn, Shape::Fixed, 0, "CR", "ignored"},
    {0, 0x18, Op::CancelPage, Shape::Fixed, 0, "CAN", "clear page"},
    {dle, 0x04, Op::StatusQuery, Shape::RealTimeStatus, 1, "DLE EOT", "status query"},
    {dle, 0x05, Op::NoEffect, Shape::Fixed, 1, "DLE ENQ", "recover"},
    {dle, 0x14, Op::NoEffect, Shape::RealTimeAction, 0, "DLE DC4", "real-time action"},
    {esc, 0x0C, Op::PrintPage, Shape::Fixed, 0, "ESC FF", "print page"},
    {esc, ' ', Op::CharacterSpacing, Shape::Fixed, 1, "ESC SP", "character spacing"},
    {esc, '!', Op::PrintMode, Shape::Fixed, 1, "ESC !", "print mode"},
    {esc, '$', Op::AbsolutePosition, Shape::Fixed, 2, "ESC $", "horizontal position"},
    {esc, '%', Op::NoEffect, Shape::Fixed, 1, "ESC %", "user-defined characters"},
    {esc, '(', Op::NoEffect, Shape::Function, 0, "ESC (", "function, not drawn"},
    {esc, '*', Op::NoEffect, Shape::ColumnImage, 0, "ESC *", "column image, not drawn"},
    {esc, '-', Op::Underline, Shape::Fixed, 1, "ESC -", "underline"},
    {esc, '2', Op::DefaultLineSpacing, Shape::Fixed, 0, "ESC 2", "default line spacing"},
    {esc, '3', Op::LineSpacing, Shape::Fixed, 1, "ESC 3", "line spacing"},
    {esc, '=', Op::NoEffect, Shape::Fixed, 1, "ESC =", "peripheral"},
    {esc, '?', Op::NoEffect, Shape::Fixed, 1, "ESC ?", "cancel user-defined character"},
    {esc, '@', Op::Reset, Shape::Fixed, 0, "ESC @", "reset"},
    {esc, 'D', Op::TabStops, Shape::ZeroEnded, 32, "ESC D", "tab stops"},
    {esc, 'E', Op::Emphasis, Shape::Fixed, 1, "ESC E", "emphasis"},
    {esc, 'G', Op::DoubleStrike, Shape::Fixed, 1, "ESC G", "double strike"},
    {esc, 'J', Op::FeedDots, Shape::Fixed, 1, "ESC J", "feed dots"},
    {esc, 'L', Op::PageMode, Shape::Fixed, 0, "ESC L", "page mode"},
    {esc, 'M', Op::Font, Shape::Fixed, 1, "ESC M", "font"},
    {esc, 'R', Op::NoEffect, Shape::Fixed, 1, "ESC R", "international characters"},
    {esc, 'S', Op::StandardMode, Shape::Fixed, 0, "ESC S", "standard mode"},
    {esc, 'T', Op::PageDirection, Shape::Fixed, 1, "ESC T", "page direction"},
    {esc, 'V', Op::NoEffect, Shape::Fixed, 1, "ESC V", "rotation, not drawn"},
    {esc, 'W', Op::PageArea, Shape::Fixed, 8, "ESC W", "page area"},
    {esc, '\\', Op::RelativePosition, Shape::Fixed, 2, "ESC \\", "move horizontally"},
    {esc, 'a', Op::Alignment, Shape::Fixed, 1, "ESC a", "alignment"},
    {esc, 'c', Op::NoEffect, Shape::Fixed, 2, "ESC c", "sensors and keys"},
    {esc, 'd', Op::FeedLines, Shape::Fixed, 1, "ESC d", "feed lines"},
    {esc, 'i', Op::Cut, Shape::Fixed, 0, "ESC i", "cut"},
    {esc, 'm', Op::Cut, Shape::Fixed, 0, "ESC m", "cut"},
    {esc, 'p', Op::Drawer, Shape::Fixed, 3, "ESC p", "drawer"},
    {esc, 'r', Op::NoEffect, Shape::Fixed, 1, "ESC r", "colour"},
    {esc, 't', Op::CodeTable, Shape::Fixed, 1, "ESC t", "code table"},
    {esc, '{', Op::NoEffect, Shape::Fixed, 1, "ESC {", "upside down, not drawn"},
    {fs, '!', Op::NoEffect, Shape::Fixed, 1, "FS !", "Kanji print mode"},
    {fs, '&', Op::NoEffect, Shape::Fixed, 0, "FS &", "Kanji mode"},
    {fs, '(', Op::NoEffect, Shape::Function, 0, "FS (", "function, not drawn"},
    {fs, '-', Op::NoEffect, Shape::Fixed, 1, "FS -", "Kanji underline"},
    {fs, '.', Op::NoEffect, Shape::Fixed, 0, "FS .", "no Kanji mode"},
    {fs, 'C', Op::NoEffect, Shape::Fixed, 1, "FS C", "Kanji code"},
    {fs, 'S', Op::NoEffect, Shape::Fixed, 2, "FS S", "Kanji spacing"},
    {fs, 'W', Op::NoEffect, Shape::Fixed, 1, "FS W", "Kanji size"},
    {fs, 'p', Op::NoEffect, Shape::Fixed, 2, "FS p", "stored image, not drawn"},
    {gs, '!', Op::CharacterSize, Shape::Fixed, 1, "GS !", "character size"},
    {gs, '$', Op::PageVerticalPosition, Shape::Fixed, 2, "GS $", "vertical position"},
    {gs, '(', Op::NoEffect, Shape::Function, 0, "GS (", "function, not drawn"},
    {gs, '*', Op::NoEffect, Shape::DownloadImage, 0, "GS *", "image definition, not drawn"},
    {gs, '/', Op::NoEffect, Shape::Fixed, 1, "GS /", "print defined image, not drawn"},
    {gs, '8', Op::NoEffect, Shape::LongFunction, 0, "GS 8", "long function, not drawn"},
    {gs, ':', Op::NoEffect, Shape::Fixed, 0, "GS :", "macro"},
    {gs, 'B', Op::Reverse, Shape::Fixed, 1, "GS B", "white on black"},
    {gs, 'H', Op::BarcodeTextPosition, Shape::Fixed, 1, "GS H", "barcode text position"},
    {gs, 'I', Op::IdentificationQuery, Shape::Fixed, 1, "GS I", "identification query"},
    {gs, 'L', Op::LeftMargin, Shape::Fixed, 2, "GS L", "left margin"},
    {gs, 'P', Op::NoEffect, Shape::Fixed, 2, "GS P", "motion units, not drawn"},
    {gs, 'T', Op::NoEffect, Shape::Fixed, 1, "GS T", "to the line's start"},
    {gs, 'V', Op::Cut, Shape::Cut, 1, "GS V", "cut"},
    {gs, 'W', Op::PrintWidth, Shape::Fixed, 2, "GS W", "print width"},
    {gs, '\\', Op::PageVerticalMove, Shape::Fixed, 2, "GS \\", "move vertically"},
    {gs, '^', Op::NoEffect, Shape::Fixed, 3, "GS ^", "macro"},
    {gs, 'a', Op::AutomaticStatus, Shape::Fixed, 1, "GS a", "automatic status"},
    {gs, 'b', Op::NoEffect, Shape::Fixed, 1, "GS b", "smoothing"},
    {gs, 'c', Op::NoEffect, Shape::Fixed, 0, "GS c", "counter"},
    {gs, 'f', Op::BarcodeTextFont, Shape::Fixed, 1, "GS f", "barcode text font"},
    {gs, 'h', Op::BarcodeHeight, Shape::Fixed, 1, "GS h", "barcode height"},
    {gs, 'k', Op::Barcode, Shape::Barcode, 1, "GS k", "barcode"},
    {gs, 'o', Op::QrAltSettings, Shape::Fixed, 4, "GS o", "QR settings (ORLA-K)"},
    {gs, 'r', Op::StatusQuery, Shape::Fixed, 1, "GS r", "status query"},
    {gs, 'v', Op::RasterImage, Shape::RasterImage, 0, "GS v 0", "raster image"},
    {gs, 'w', Op::BarcodeModuleWidth, Shape::Fixed, 1, "GS w", "barcode module width"},
    {gs, 'z', Op::NoEffect, Shape::Fixed, 3, "GS z", "on-line recovery"},
};

/** Functions of ESC ( and GS ( that this printer knows, by the bytes behind the length. */
struct FunctionSpec {
    unsigned char lead;
    unsigned char letter;
    Op op;
    std::string_view head; // the first data bytes, which name the function
    std::size_t length;    // of the whole data; 0 for any
    std::string_view effect;
};

constexpr FunctionSpec functions[] = {
    {esc, 'A', Op::Buzzer, "\x61\x64", 5, "buzzer"},
    {gs, 'L', Op::StoredGraphic, "\x30\x45", 6, "print stored graphic"},
    {gs, 'k', Op::QrModel, "\x31\x41", 4, "QR model"},
    {gs, 'k', Op::QrModuleSize, "\x31\x43", 3, "QR module size"},
    {gs, 'k', Op::QrLevel, "\x31\x45", 3, "QR level"},
    {gs, 'k', Op::QrStore, "\x31\x50\x30", 0, "QR data"},
    {gs, 'k', Op::QrPrint, "\x31\x51\x30", 3, "print QR code"},
};

const Spec* findSpec(unsigned char lead, unsigned char code)
{
    const auto row = [](unsigned char first) -> std::size_t {
        constexpr std::string_view leads("\x10\x1B\x1C\x1D");
        return leads.find(static_cast<char>(first)) + 1; // a lone control code is row 0
    };
    static const auto table = [&row] {
        std::array<std::array<const Spec*, 256>, 5> rows{};
        for (const Spec& spec : specs) {
            rows[row(spec.lead)][spec.code] = &spec;
        }
        return rows;
    }();
    return table[row(lead)][code];
}

constexpr std::size_t endNotSeen = static_cast<std::size_t>(-1);

/** What the next command is and how far it reaches; more than the bytes at hand while it is not
 *  whole. dataAt is then the length of the part that certainly belongs to it. */
struct Extent {
    Op op;
    std::size_t total;
    std::size_t argsAt;
    std::size_t dataAt;
    std::size_t dataSize;
};

Extent fixed(Op op, std::size_t head, std::size_t count)
{
    return {op, head + count, head, head + count, 0};
}

Extent withData(Op op, std::size_t argsAt, std::size_t dataAt, std::size_t size)
{
    return {op, dataAt + size, argsAt, dataAt, size};
}

Extent malformed(std::size_t length)
{
    return {Op::Malformed, length, length, length, 0};
}

/** The arguments that decide the length are still to come: `head` bytes are needed. */
Extent unfinished(std::size_t head)
{
    return {Op::Truncated, endNotSeen, head, head, 0};
}

Extent zeroEnded(Op op, std::string_view rest, std::size_t argsAt, std::size_t dataAt,
                 std::size_t longest)
{
    const std::size_t end = rest.substr(0, dataAt + longest + 1).find('\0', dataAt);
    if (end != std::string_view::npos) {
        return {op, end + 1, argsAt, dataAt, end - dataAt};
    }
    return rest.size() > dataAt + longest ? malformed(dataAt) : unfinished(dataAt);
}

/** Bytes at hand, read without fear of their end. */
struct Reader {
    std::string_view rest;
    bool has(std::size_t count) const { return rest.size() >= count; }
    std::size_t at(std::size_t i) const { return static_cast<unsigned char>(rest[i]); }
    std::size_t at16(std::size_t i) const { return at(i) + 256 * at(i + 1); }
};

bool isOneOf(std::size_t value, std::string_view values)
{
    return value < 256 && values.find(static_cast<char>(value)) != std::string_view::npos;
}

Extent measureFunction(const Reader& in)
{
    if (!in.has(5)) {
        return unfinished(5);
    }
    const std::size_t size = in.at16(3);
    for (const FunctionSpec& function : functions) {
        if (function.lead != in.at(0) || function.letter != in.at(2) ||
            size < function.head.size()) {
            continue;
        }
        const std::size_t dataAt = 5 + function.head.size();
        if (!in.has(dataAt)) {
            return unfinished(dataAt);
        }
        if (in.rest.substr(5, function.head.size()) == function.head) {
            constexpr std::size_t longestQrText = 7089;
            if (function.length == 0 && size > longestQrText + function.head.size()) {
                return malformed(dataAt);
            }
            if (function.length == 0) {
                return withData(function.op, dataAt, dataAt, 5 + size - dataAt);
            }
            const Op op = function.length == size ? function.op : Op::Malformed;
            return fixed(op, dataAt, 5 + size - dataAt);
        }
    }
    return withData(Op::NoEffect, 2, 5, size);
}

Extent measureBarcode(const Reader& in)
{
    constexpr std::size_t longestText = 255;
    constexpr std::size_t longestQrText = 7089;
    if (!in.has(3)) {
        return unfinished(3);
    }
    const std::size_t symbology = in.at(2);
    if (symbology <= 6) {
        return zeroEnded(Op::Barcode, in.rest, 2, 3, longestText);
    }
    if (symbology == 0x0B) { // ORLA-K: level letter, "A,", text, zero
        if (!in.has(6)) {
            return unfinished(6);
        }
        return in.rest.substr(4, 2) == "A,"
                   ? zeroEnded(Op::QrAltPrint, in.rest, 3, 6, longestQrText)
                   : malformed(3);
    }
    if (symbology == 0x51) { // SORBE: zero, size, level, 1, length + 3, text
        if (!in.has(9)) {
            return unfinished(9);
        }
        const std::size_t announced = in.at16(7);
        if (in.at(3) != 0 || announced < 3 || announced > longestQrText + 3) {
            return malformed(in.at(3) != 0 ? 3 : 9);
        }
        return withData(Op::QrBemaPrint, 4, 9, announced - 3);
    }
    if (symbology >= 65 && symbology <= 79) {
        if (!in.has(4)) {
            return unfinished(4);
        }
        return in.at(3) == 0 ? malformed(4) : withData(Op::Barcode, 2, 4, in.at(3));
    }
    return malformed(3);
}

Extent measureImage(const Reader& in, const Spec& spec)
{
    const auto bounded = [&spec](std::size_t argsAt, std::size_t dataAt, std::size_t size) {
        return size > CommandParser::longestCommand ? malformed(dataAt)
                                                    : withData(spec.op, argsAt, dataAt, size);
    };
    switch (spec.shape) {
    case Shape::ColumnImage:
        if (!in.has(5)) {
            return unfinished(5);
        }
        if (!isOneOf(in.at(2), std::string_view("\x00\x01\x20\x21", 4))) {
            return malformed(3);
        }
        return bounded(2, 5, in.at16(3) * (in.at(2) >= 32 ? 3 : 1));
    case Shape::DownloadImage:
        return in.has(4) ? bounded(2, 4, in.at(2) * in.at(3) * 8) : unfinished(4);
    case Shape::LongFunction:
        return in.has(7) ? bounded(2, 7, in.at16(3) + 65536 * in.at16(5)) : unfinished(7);
    default: // RasterImage
        if (!in.has(8)) {
            return in.has(3) && in.at(2) != '0' ? malformed(3) : unfinished(8);
        }
        return in.at(2) == '0' ? bounded(3, 8, in.at16(4) * in.at16(6)) : malformed(3);
    }
}

/** Commands whose length hangs on their first argument. */
Extent measureByMode(const Reader& in, const Spec& spec)
{
    if (!in.has(3)) {
        return unfinished(3);
    }
    const std::size_t mode = in.at(2);
    if (spec.shape == Shape::RealTimeStatus) {
        return fixed(spec.op, 2, isOneOf(mode, "\x07\x08\x12") ? 2 : 1);
    }
    if (spec.shape == Shape::RealTimeAction) {
        return mode == 8                       ? fixed(spec.op, 2, 8)
               : isOneOf(mode, "\x01\x02\x03") ? fixed(spec.op, 2, 3)
                                               : malformed(3);
    }
    if (isOneOf(mode, std::string_view("\x00\x01"
                                       "01",
                                       4))) {
        return fixed(spec.op, 2, 1);
    }
    return isOneOf(mode, "ABabgh") ? fixed(spec.op, 2, 2) : malformed(3);
}

Extent measureCommand(std::string_view rest)
{
    const Reader in{rest};
    const auto first = static_cast<unsigned char>(rest[0]);
    if (!isOneOf(first, "\x10\x1B\x1C\x1D")) {
        const Spec* control = findSpec(0, first);
        return fixed(control != nullptr ? control->op : Op::Unknown, 1, 0);
    }
    if (!in.has(2)) {
        return unfinished(2);
    }
    const Spec* spec = findSpec(first, static_cast<unsigned char>(rest[1]));
    if (spec == nullptr) {
        // A control code behind a lead byte is more likely the next command than part of this one.
        return fixed(Op::Unknown, in.at(1) < 0x20 ? 1 : 2, 0);
    }
    switch (spec->shape) {
    case Shape::Fixed:
        return fixed(spec->op, 2, spec->count);
    case Shape::Function:
        return measureFunction(in);
    case Shape::ZeroEnded:
        return zeroEnded(spec->op, rest, 2, 2, spec->count);
    case Shape::Barcode:
        return measureBarcode(in);
    case Shape::Cut:
    case Shape::RealTimeStatus:
    case Shape::RealTimeAction:
        return measureByMode(in, *spec);
    default:
        return measureImage(in, *spec);
    }
}

constexpr std::string_view tildeQuery = "~HI";

Extent measureText(std::string_view rest, bool tildeQueries)
{
    if (tildeQueries && rest[0] == '~' &&
        tildeQuery.substr(0, rest.size()) == rest.substr(0, tildeQuery.size())) {
        return fixed(Op::TildeIdentification, tildeQuery.size(), 0);
    }
    const std::string_view run = rest.substr(0, CommandParser::longestText);
    const auto* end = std::find_if(run.begin() + 1, run.end(), [tildeQueries](char c) {
        return static_cast<unsigned char>(c) < 0x20 || (tildeQueries && c == '~');
    });
    const auto length = static_cast<std::size_t>(end - run.begin());
    // More of the same run may be on its way.
    const bool open = length == rest.size() && length < CommandParser::longestText;
    return {Op::Text, open ? endNotSeen : length, 0, 0, length};
}

} // namespace

CommandParser::CommandParser(Receiver receiver, TildeQueries tilde)
    : m_receiver(std::move(receiver)), m_tilde(tilde)
{
}

void CommandParser::feed(std::string_view bytes)
{
    m_pending.append(bytes);
    takeCommands(false);
}

void CommandParser::finish()
{
    takeCommands(true);
}

void CommandParser::takeCommands(bool ended)
{
    std::size_t at = 0;
    while (at < m_pending.size()) {
        const std::string_view rest = std::string_view(m_pending).substr(at);
        Extent extent = static_cast<unsigned char>(rest[0]) < 0x20
                            ? measureCommand(rest)
                            : measureText(rest, m_tilde == TildeQueries::Yes);
        if (extent.total > rest.size()) {
            if (!ended) {
                break;
            }
            if (extent.op == Op::Text || extent.op == Op::TildeIdentification) {
                extent = {Op::Text, rest.size(), 0, 0, rest.size()};
            } else {
                // A wrong length may have swallowed a whole receipt: only the head is given up, what
                // lies behind it is read as if the command had not been there.
                extent = {Op::Truncated, std::min(extent.dataAt, rest.size()), 0, 0, 0};
                extent.argsAt = extent.dataAt = extent.total;
            }
        }
        m_receiver(Command{extent.op, m_offset + at, std::string(rest.substr(0, extent.total)),
                           extent.argsAt, extent.dataAt, extent.dataSize});
        at += extent.total;
    }
    m_offset += at;
    m_pending.erase(0, at);
}

std::vector<Command> parseAll(std::string_view bytes)
{
    std::vector<Command> commands;
    CommandParser parser([&commands](const Command& command) { commands.push_back(command); });
    parser.feed(bytes);
    parser.finish();
    return commands;
}

CommandName nameOf(const Command& command)
{
    if (command.op == Op::Text || command.bytes.empty()) {
        return {};
    }
    if (command.op == Op::TildeIdentification) {
        return {std::string(tildeQuery), "identification query"};
    }
    const auto first = static_cast<unsigned char>(command.bytes[0]);
    const bool lead = isOneOf(first, "\x10\x1B\x1C\x1D");
    if (lead && command.bytes.size() < 2) {
        return {};
    }
    const Spec* spec =
        lead ? findSpec(first, static_cast<unsigned char>(command.bytes[1])) : findSpec(0, first);
    if (spec == nullptr) {
        return {};
    }
    CommandName found{std::string(spec->name), spec->effect};
    if (spec->shape == Shape::Function && command.bytes.size() > 2) {
        found.name.append(" ").append(1, command.bytes[2]);
        for (const FunctionSpec& function : functions) {
            if (function.op == command.op) {
                found.effect = function.effect;
            }
        }
    } else if (command.op == Op::QrAltPrint) {
        found.effect = "print QR code (ORLA-K)";
    } else if (command.op == Op::QrBemaPrint) {
        found.effect = "print QR code (SORBE)";
    }
    return found;
}

} // namespace virtual_printer
