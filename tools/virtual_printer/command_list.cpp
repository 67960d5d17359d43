#include "command_list.h"

#include "code_table.h"
#include "command_parser.h"

#include <algorithm>

namespace virtual_printer
{
namespace
{

void padTo(std::string& line, std::size_t column)
{
    line.append(line.size() < column ? column - line.size() : 1, ' ');
}

std::string hexOf(std::string_view bytes)
{
    constexpr char digits[] = "0123456789ABCDEF";
    std::string text;
    for (const char c : bytes) {
        const auto byte = static_cast<unsigned char>(c);
        text += text.empty() ? "" : " ";
        text += digits[byte >> 4U];
        text += digits[byte & 0xFU];
    }
    return text;
}

std::string offsetColumn(std::uint64_t offset)
{
    std::string number = std::to_string(offset);
    number.insert(0, number.size() < 8 ? 8 - number.size() : 0, ' ');
    return number + "  ";
}

bool isImage(const Command& command)
{
    return command.op == Op::RasterImage || command.op == Op::NoEffect;
}

} // namespace

std::string listLine(const Command& command)
{
    std::string line = offsetColumn(command.offset);
    if (command.op == Op::Text) {
        return line + quoted(command.bytes);
    }
    const std::size_t head = command.dataSize > 0 ? command.dataAt : command.bytes.size();
    line += hexOf(std::string_view(command.bytes).substr(0, head));
    padTo(line, 36);

    const CommandName name = nameOf(command);
    switch (command.op) {
    case Op::Unknown:
        return line + "unknown";
    case Op::Malformed:
        line.append("malformed ").append(name.name).append(", ").append(name.effect);
        break;
    case Op::Truncated:
        return line.append("truncated ").append(name.name).append(", ").append(name.effect);
    default:
        line += name.name;
        for (std::size_t at = command.argsAt; at < head; ++at) {
            line += ' ' + std::to_string(static_cast<unsigned char>(command.bytes[at]));
        }
        if (!name.effect.empty()) {
            padTo(line, 54);
            line += name.effect;
        }
    }
    if (command.dataSize > 0) {
        line += ' ';
        line +=
            isImage(command) ? std::to_string(command.dataSize) + " bytes" : quoted(command.data());
    }
    return line;
}

std::string remarkLine(std::uint64_t offset, std::string_view remark)
{
    return (offsetColumn(offset) + ">> ").append(remark);
}

} // namespace virtual_printer
