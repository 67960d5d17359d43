#include "bytes.h"

#include "command_list.h"
#include "command_parser.h"

#include <QString>
#include <algorithm>
#include <fstream>
#include <stdexcept>

namespace q7test
{
namespace
{

using Byte = unsigned char;

char hexByte(std::string_view pair)
{
    if (pair.size() != 2 || !std::isxdigit(static_cast<Byte>(pair[0])) ||
        !std::isxdigit(static_cast<Byte>(pair[1])))
        throw std::invalid_argument("no hexadecimal byte: " + std::string(pair));
    return static_cast<char>(std::stoi(std::string(pair), nullptr, 16));
}

// Reads a quoted text whose opening quote is at `at`; leaves it behind the closing one.
std::string unquoted(std::string_view line, std::size_t& at)
{
    std::string bytes;
    const char quote = line[at++];
    for (; at < line.size() && line[at] != quote; ++at) {
        if (line[at] != '\\' || at + 1 == line.size()) {
            bytes += line[at];
        } else if (line[++at] == 'x') {
            bytes += hexByte(line.substr(at + 1, 2));
            at += 2;
        } else {
            bytes += line[at] == 'n' ? '\n' : line[at];
        }
    }
    if (at++ >= line.size())
        throw std::invalid_argument("text without its closing quote: " + std::string(line));
    return bytes;
}

std::string latin1(const std::string& utf8)
{
    const QString text = QString::fromStdString(utf8);
    if (QString::fromLatin1(text.toLatin1()) != text)
        throw std::invalid_argument("not in Latin-1: " + utf8);
    return text.toLatin1().toStdString();
}

// The commands around that offset; the one at it is marked.
std::string excerpt(std::string_view bytes, std::size_t offset)
{
    constexpr std::size_t around = 8;
    const std::vector<virtual_printer::Command> commands = virtual_printer::parseAll(bytes);
    std::size_t marked = 0;
    while (marked < commands.size() &&
           commands[marked].offset + commands[marked].bytes.size() <= offset)
        ++marked;
    std::string text;
    for (std::size_t i = marked - std::min(marked, around); i <= marked + around; ++i)
        if (i < commands.size())
            text += (i == marked ? "  > " : "    ") + listLine(commands[i]) + '\n';
    return marked < commands.size() ? text : text + "  > (end)\n";
}

} // namespace

std::string hex(std::string_view notation)
{
    std::string bytes;
    for (std::size_t at = 0; at < notation.size() && notation[at] != ';';) {
        if (std::isspace(static_cast<Byte>(notation[at]))) {
            ++at;
        } else if (notation[at] == '\'' || notation[at] == '"') {
            bytes += unquoted(notation, at);
        } else {
            bytes += hexByte(notation.substr(at, 2));
            at += 2;
        }
    }
    return bytes;
}

std::string encoded(const std::vector<std::string>& lines)
{
    std::string bytes;
    for (const std::string& line : lines)
        bytes += hex(latin1(line));
    return bytes;
}

testing::AssertionResult sameBytes(std::string_view expected, std::string_view received)
{
    if (expected == received)
        return testing::AssertionSuccess();
    const auto offset = static_cast<std::size_t>(
        std::mismatch(expected.begin(), expected.end(), received.begin(), received.end()).first -
        expected.begin());
    return testing::AssertionFailure()
           << "bytes differ from offset " << offset << " on\nexpected, " << expected.size()
           << " bytes:\n"
           << excerpt(expected, offset) << "received, " << received.size() << " bytes:\n"
           << excerpt(received, offset);
}

testing::AssertionResult sameAsGolden(const std::string& name, std::string_view received)
{
    std::ifstream file(std::string(Q7_TEST_DATA) + '/' + name);
    if (!file)
        throw std::runtime_error("golden file missing: tests/data/" + name);
    std::vector<std::string> lines;
    for (std::string line; std::getline(file, line);)
        lines.push_back(line);
    return sameBytes(encoded(lines), received) << " (tests/data/" << name << ')';
}

} // namespace q7test
