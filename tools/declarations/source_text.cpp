#include "source_text.h"

#include <algorithm>

namespace q7decl
{
namespace
{

constexpr std::size_t lineColumns = 100;

std::size_t columnsOf(const std::string& text)
{
    return static_cast<std::size_t>(
        std::count_if(text.begin(), text.end(), [](char c) { return (c & 0xC0) != 0x80; }));
}

} // namespace

const char* const generatedNote =
    "Gerado a partir de q7_impressora.h por scripts/declarations; não altere.";

std::vector<std::string> wrapped(const std::string& text, std::size_t width)
{
    std::vector<std::string> lines;
    std::string line;
    std::size_t begin = 0;
    while (begin < text.size()) {
        const std::size_t end = std::min(text.find(' ', begin), text.size());
        const std::string word = text.substr(begin, end - begin);
        if (!line.empty() && columnsOf(line) + 1 + columnsOf(word) > width) {
            lines.push_back(line);
            line.clear();
        }
        line += (line.empty() ? "" : " ") + word;
        begin = end + 1;
    }
    lines.push_back(line);
    return lines;
}

std::string comment(const std::string& prefix, const std::string& text)
{
    std::string result;
    for (const std::string& line : wrapped(text, lineColumns - columnsOf(prefix)))
        result += prefix + line + "\n";
    return result;
}

std::vector<std::string> details(const Function& function)
{
    std::vector<std::string> paragraphs = function.remarks;
    if (!function.errors.empty())
        paragraphs.push_back(
            "Códigos: " + list(function.errors, ", ", [](const std::string& s) { return s; }) +
            ".");
    paragraphs.push_back("Efeito: " + function.effect);
    paragraphs.push_back("ESC/POS: " + function.command);
    return paragraphs;
}

std::string replaced(std::string text, const std::string& from, const std::string& to)
{
    for (std::size_t at = text.find(from); at != std::string::npos;
         at = text.find(from, at + to.size()))
        text.replace(at, from.size(), to);
    return text;
}

std::string unreserved(const std::string& name, const std::set<std::string>& reservedLowerCase)
{
    std::string lower = name;
    for (char& c : lower)
        if (c >= 'A' && c <= 'Z')
            c = static_cast<char>(c - 'A' + 'a');
    return reservedLowerCase.count(lower) == 0 ? name : name + "_";
}

std::string doubleQuoted(const std::string& text)
{
    return "\"" + replaced(replaced(text, "\\", "\\\\"), "\"", "\\\"") + "\"";
}

std::string asMarkup(const std::string& text)
{
    return replaced(replaced(replaced(text, "&", "&amp;"), "<", "&lt;"), ">", "&gt;");
}

std::string messageOf(const ResultCode& code)
{
    return code.meaning + ". O que fazer: " + code.remedy + ".";
}

std::string messageCases(const std::vector<ResultCode>& codes)
{
    return list(codes, "", [](const ResultCode& code) {
        return "            case " + code.name + ":\n                return " +
               doubleQuoted(messageOf(code)) + ";\n";
    });
}

bool hasTextArgument(const Function& function)
{
    return std::any_of(function.parameters.begin(), function.parameters.end(),
                       [](const Parameter& parameter) { return parameter.kind == Kind::Text; });
}

std::string asWindowsText(const std::string& utf8)
{
    std::string text;
    for (std::size_t i = 0; i < utf8.size(); ++i) {
        const auto byte = static_cast<unsigned char>(utf8[i]);
        if (byte == '\n') {
            text += "\r\n";
        } else if (byte < 0x80) {
            text += utf8[i];
        } else if ((byte == 0xC2 || byte == 0xC3) && i + 1 < utf8.size()) {
            // U+0080 to U+00FF; the code page has U+00A0 and above at the same place.
            text += static_cast<char>((byte == 0xC3 ? 0x40 : 0) | (utf8[++i] & 0xFF));
        } else {
            throw std::runtime_error("a character that code page 1252 lacks");
        }
    }
    return text;
}

} // namespace q7decl
