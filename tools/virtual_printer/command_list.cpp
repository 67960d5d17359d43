#include "command_list.h"

#include "code_table.h"
#include "command_table.h"
#include "phrases.h"

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

/** What of it is no data of variable length. */
std::size_t headSize(const Command& command)
{
    return command.dataSize > 0 ? command.dataAt : command.bytes.size();
}

bool isImage(const Command& command)
{
    return command.op == Op::RasterImage || command.op == Op::NoEffect;
}

} // namespace

std::string nameWithArguments(const Command& command, Language language)
{
    if (command.op == Op::Text) {
        return quoted(command.bytes);
    }
    const std::string name = nameOf(command).name;
    switch (command.op) {
    case Op::Unknown:
        return std::string(phrases::unknown.in(language));
    case Op::Malformed:
        return Message(phrases::malformed, {name}).in(language);
    case Op::Truncated:
        return Message(phrases::truncated, {name}).in(language);
    default:
        break;
    }
    std::string text = name;
    for (std::size_t at = command.argsAt; at < headSize(command); ++at) {
        text += ' ' + std::to_string(static_cast<unsigned char>(command.bytes[at]));
    }
    return text;
}

std::string listLine(const Command& command, Language language)
{
    constexpr std::size_t nameColumn = 44;
    constexpr std::size_t effectColumn = 70;
    std::string line = offsetColumn(command.offset);
    if (command.op != Op::Text) {
        line += hexOf(std::string_view(command.bytes).substr(0, headSize(command)));
        padTo(line, nameColumn);
    }
    line += nameWithArguments(command, language);
    if (const std::string_view effect = nameOf(command).effect.in(language); !effect.empty()) {
        padTo(line, effectColumn);
        line += effect;
    }
    if (command.op != Op::Text && command.dataSize > 0) {
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
