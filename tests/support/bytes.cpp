#include "bytes.h"

#include <algorithm>
#include <cstdlib>
#include <fstream>
#include <stdexcept>

namespace q7test
{
namespace
{

using Byte = unsigned char;

enum class Tail {
    Fixed,      // `arguments` bytes
    LengthWord, // pL pH, then so many bytes
    LengthByte, // m n, then n bytes
    ToZero,     // up to a zero byte and with it
    BemaQr,     // five bytes of which the last two are a length, 3 more than the data that follow
};

struct Command {
    std::string head;
    const char* name;
    std::size_t arguments;
    Tail tail;

    Command(const char* digits, const char* command, std::size_t count, Tail end = Tail::Fixed)
        : head(hex(digits)), name(command), arguments(count), tail(end)
    {
    }
};

// Longest heads first where one begins another.
const Command commands[] = {
    {"1B 40", "ESC @", 0},
    {"1B 21", "ESC !", 1},
    {"1B 45", "ESC E", 1},
    {"1B 33", "ESC 3", 1},
    {"1B 61", "ESC a", 1},
    {"1B 74", "ESC t", 1},
    {"1B 70", "ESC p", 3},
    {"1B 4C", "ESC L", 0},
    {"1B 53", "ESC S", 0},
    {"1B 0C", "ESC FF", 0},
    {"1B 54", "ESC T", 1},
    {"1B 57", "ESC W", 8},
    {"1B 24", "ESC $", 2},
    {"1B 28 41", "ESC ( A", 0, Tail::LengthWord},
    {"1D 21", "GS !", 1},
    {"1D 42", "GS B", 1},
    {"1D 24", "GS $", 2},
    {"1D 56", "GS V", 1},
    {"1D 68", "GS h", 1},
    {"1D 77", "GS w", 1},
    {"1D 48", "GS H", 1},
    {"1D 6B 0B", "GS k 11", 0, Tail::ToZero},
    {"1D 6B 51 00", "GS k Q", 0, Tail::BemaQr},
    {"1D 6B", "GS k", 0, Tail::LengthByte},
    {"1D 6F", "GS o", 4},
    {"1D 28 6B", "GS ( k", 0, Tail::LengthWord},
    {"1D 28 4C", "GS ( L", 0, Tail::LengthWord},
    {"1D 49", "GS I", 1},
    {"1D 61", "GS a", 1},
    {"10 04", "DLE EOT", 1},
    {"7E 48 49", "~HI", 0},
    {"18", "CAN", 0},
    {"0C", "FF", 0},
};

bool isPrintable(Byte byte)
{
    return (byte >= 0x20 && byte < 0x7F) || byte >= 0xA0;
}

std::string hexByte(Byte byte)
{
    constexpr char digits[] = "0123456789ABCDEF";
    return {digits[byte / 16], digits[byte % 16]};
}

std::string quoted(std::string_view bytes)
{
    std::string text = "\"";
    for (const char c : bytes) {
        const auto byte = static_cast<Byte>(c);
        if (c == '\n')
            text += "\\n";
        else if (c == '\r')
            text += "\\r";
        else if (c == '"' || c == '\\')
            text.append("\\") += c;
        else if (!isPrintable(byte))
            text += "\\x" + hexByte(byte);
        else if (byte < 0x80)
            text += c;
        else // Latin-1 as UTF-8
            text.append(1, static_cast<char>(0xC0 | byte >> 6)) +=
                static_cast<char>(0x80 | (byte & 0x3F));
    }
    return text + '"';
}

// How many bytes at the front make up head, arguments and data; `data` is where the data begins.
std::size_t lengthOf(const Command& command, std::string_view bytes, std::size_t& data)
{
    const std::size_t head = command.head.size();
    const auto at = [&](std::size_t index) -> std::size_t {
        return head + index < bytes.size() ? static_cast<Byte>(bytes[head + index]) : 0;
    };
    const auto withData = [&](std::size_t arguments, std::size_t count) {
        data = head + arguments;
        return data + count;
    };
    std::size_t length = 0;
    switch (command.tail) {
    case Tail::Fixed:
        length = data = head + command.arguments;
        break;
    case Tail::LengthWord:
        length = withData(2, at(0) + 256 * at(1));
        break;
    case Tail::LengthByte:
        length = withData(2, at(1));
        break;
    case Tail::BemaQr:
        length = withData(5, std::max<std::size_t>(at(3) + 256 * at(4), 3) - 3);
        break;
    case Tail::ToZero:
        length = withData(0, std::min(bytes.find('\0', head), bytes.size() - 1) + 1 - head);
        break;
    }
    data = std::min(data, bytes.size());
    return std::min(length, bytes.size());
}

const Command* commandAt(std::string_view bytes)
{
    const auto found =
        std::find_if(std::begin(commands), std::end(commands), [&](const Command& command) {
            return bytes.substr(0, command.head.size()) == command.head;
        });
    return found == std::end(commands) ? nullptr : found;
}

std::string commandLine(const Command& command, std::string_view bytes, std::size_t data)
{
    std::string line;
    const bool isText = data < bytes.size() && bytes.size() - data > 3;
    for (const char c : bytes.substr(0, isText ? data : bytes.size()))
        line += (line.empty() ? "" : " ") + hexByte(static_cast<Byte>(c));
    if (isText)
        line += ' ' + quoted(bytes.substr(data));
    line.resize(std::max<std::size_t>(line.size() + 1, 32), ' ');
    return line + "; " + command.name;
}

Byte hexValue(std::string_view pair)
{
    if (pair.size() != 2 || !std::isxdigit(static_cast<Byte>(pair[0])) ||
        !std::isxdigit(static_cast<Byte>(pair[1])))
        throw std::invalid_argument("no hexadecimal byte: " + std::string(pair));
    return static_cast<Byte>(std::stoi(std::string(pair), nullptr, 16));
}

// Reads a quoted text from `at`, which is behind its opening quote; leaves it behind the closing one.
std::string unquoted(std::string_view line, std::size_t& at)
{
    std::string bytes;
    for (; at < line.size() && line[at] != '"'; ++at) {
        const auto byte = static_cast<Byte>(line[at]);
        if (byte == '\\' && at + 1 < line.size()) {
            const char escape = line[++at];
            if (escape == 'x')
                bytes += static_cast<char>(hexValue(line.substr(at + 1, 2))), at += 2;
            else
                bytes += escape == 'n' ? '\n' : escape == 'r' ? '\r' : escape;
        } else if (byte < 0x80) {
            bytes += line[at];
        } else if ((byte == 0xC2 || byte == 0xC3) && at + 1 < line.size()) {
            bytes += static_cast<char>((byte & 3) << 6 | (static_cast<Byte>(line[++at]) & 0x3F));
        } else {
            throw std::invalid_argument("not a Latin-1 character: " + std::string(line));
        }
    }
    if (at++ >= line.size())
        throw std::invalid_argument("text without its closing quote: " + std::string(line));
    return bytes;
}

std::string excerpt(const std::vector<std::string>& lines, std::size_t marked)
{
    constexpr std::size_t around = 8;
    std::string text;
    const std::size_t first = marked > around ? marked - around : 0;
    for (std::size_t i = first; i < lines.size() && i <= marked + around; ++i)
        text += (i == marked ? "  > " : "    ") + lines[i] + '\n';
    return text.empty() || marked >= lines.size() ? text + "  > (end)\n" : text;
}

} // namespace

std::string hex(std::string_view digits)
{
    std::string bytes;
    for (std::size_t at = 0; at < digits.size();) {
        if (std::isspace(static_cast<Byte>(digits[at]))) {
            ++at;
            continue;
        }
        bytes += static_cast<char>(hexValue(digits.substr(at, 2)));
        at += 2;
    }
    return bytes;
}

std::vector<std::string> decoded(std::string_view bytes)
{
    std::vector<std::string> lines;
    while (!bytes.empty()) {
        std::size_t length = 0;
        if (const Command* command = commandAt(bytes)) {
            std::size_t data = 0;
            length = lengthOf(*command, bytes, data);
            lines.push_back(commandLine(*command, bytes.substr(0, length), data));
        } else {
            do
                ++length;
            while (length < bytes.size() && bytes[length - 1] != '\n' &&
                   !commandAt(bytes.substr(length)));
            lines.push_back(quoted(bytes.substr(0, length)));
        }
        bytes.remove_prefix(length);
    }
    return lines;
}

std::string encoded(const std::vector<std::string>& lines)
{
    std::string bytes;
    for (const std::string_view line : lines)
        for (std::size_t at = 0; at < line.size() && line[at] != ';';) {
            if (std::isspace(static_cast<Byte>(line[at]))) {
                ++at;
            } else if (line[at] == '"') {
                bytes += unquoted(line, ++at);
            } else {
                bytes += static_cast<char>(hexValue(line.substr(at, 2)));
                at += 2;
            }
        }
    return bytes;
}

std::string golden(const std::string& name)
{
    std::ifstream file(std::string(Q7_TEST_DATA) + '/' + name);
    if (!file)
        throw std::runtime_error("golden file missing: tests/data/" + name);
    std::vector<std::string> lines;
    for (std::string line; std::getline(file, line);)
        lines.push_back(line);
    return encoded(lines);
}

testing::AssertionResult sameBytes(std::string_view expected, std::string_view received)
{
    if (expected == received)
        return testing::AssertionSuccess();
    const std::vector<std::string> left = decoded(expected);
    const std::vector<std::string> right = decoded(received);
    const auto line = static_cast<std::size_t>(
        std::mismatch(left.begin(), left.end(), right.begin(), right.end()).first - left.begin());
    const auto offset =
        std::mismatch(expected.begin(), expected.end(), received.begin(), received.end()).first -
        expected.begin();
    return testing::AssertionFailure()
           << "bytes differ from offset " << offset << " on\nexpected, " << expected.size()
           << " bytes:\n"
           << excerpt(left, line) << "received, " << received.size() << " bytes:\n"
           << excerpt(right, line);
}

testing::AssertionResult sameAsGolden(const std::string& name, std::string_view received)
{
    if (const char* folder = std::getenv("Q7_WRITE_GOLDEN")) {
        std::string file = name;
        std::replace(file.begin(), file.end(), '/', '_');
        std::ofstream out(std::string(folder) + '/' + file);
        for (const std::string& line : decoded(received))
            out << line << '\n';
    }
    return sameBytes(golden(name), received) << " (tests/data/" << name << ')';
}

} // namespace q7test
