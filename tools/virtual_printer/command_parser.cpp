#include "command_parser.h"

#include "command_table.h"

#include <algorithm>

namespace virtual_printer
{
namespace
{

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

Extent measureImage(const Reader& in, const CommandSpec& spec)
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
Extent measureByMode(const Reader& in, const CommandSpec& spec)
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
    if (!leadsCommand(first)) {
        const CommandSpec* control = findCommand(0, first);
        return fixed(control != nullptr ? control->op : Op::Unknown, 1, 0);
    }
    if (!in.has(2)) {
        return unfinished(2);
    }
    const CommandSpec* spec = findCommand(first, static_cast<unsigned char>(rest[1]));
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

} // namespace virtual_printer
