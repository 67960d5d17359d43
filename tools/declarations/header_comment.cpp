#include "header_comment.h"

#include <sstream>

namespace q7decl
{
namespace
{

constexpr std::string_view blanks = " \t\r\n";

std::vector<std::string> linesWithoutFrame(std::string_view comment)
{
    comment.remove_prefix(comment.substr(0, 4) == "/**<" ? 4 : 3);
    comment.remove_suffix(2);
    std::vector<std::string> lines;
    std::istringstream stream{std::string(comment)};
    for (std::string line; std::getline(stream, line);) {
        std::string text = trimmed(line);
        if (!lines.empty() && !text.empty() && text.front() == '*')
            text = trimmed(std::string_view(text).substr(1));
        lines.push_back(text);
    }
    return lines;
}

bool isListItem(std::string_view text)
{
    return text.substr(0, 2) == "- " || (text.size() > 2 && text[1] == '.' && text[2] == ' ' &&
                                         text[0] >= '0' && text[0] <= '9');
}

// "param[out] state recebe..." after its backslash.
DocumentedParameter parameterIn(std::string_view text)
{
    DocumentedParameter parameter;
    text.remove_prefix(std::string_view("param").size());
    if (!text.empty() && text.front() == '[') {
        const std::size_t end = text.find(']');
        parameter.direction = text.substr(1, end - 1);
        text.remove_prefix(end + 1);
    }
    const std::string rest = trimmed(text);
    const std::size_t end = rest.find(' ');
    parameter.name = rest.substr(0, end);
    parameter.text = end == std::string::npos ? std::string() : rest.substr(end + 1);
    return parameter;
}

} // namespace

std::string trimmed(std::string_view text)
{
    const std::size_t begin = text.find_first_not_of(blanks);
    if (begin == std::string_view::npos)
        return {};
    return std::string(text.substr(begin, text.find_last_not_of(blanks) - begin + 1));
}

std::optional<std::string> HeaderComment::field(const std::string& name) const
{
    const auto found = fields.find(name);
    return found == fields.end() ? std::nullopt : std::optional(found->second);
}

HeaderComment parseComment(std::string_view comment)
{
    HeaderComment parsed;
    std::string* current = nullptr; // what a further line continues
    const char* joint = " ";
    bool isCode = false;
    for (const std::string& line : linesWithoutFrame(comment)) {
        if (isCode) {
            isCode = line != "\\endcode";
        } else if (line.empty()) {
            current = nullptr;
        } else if (line == "\\code") {
            isCode = true;
        } else if (line.front() == '\\') {
            const std::string_view text = std::string_view(line).substr(1);
            const std::string name(text.substr(0, text.find_first_of(" [")));
            joint = name == "exemplo" ? "\n" : " ";
            if (name == "param") {
                current = &parsed.parameters.emplace_back(parameterIn(text)).text;
            } else {
                current = &parsed.fields[name];
                *current = trimmed(text.substr(name.size()));
            }
        } else if (current == nullptr || isListItem(line)) {
            joint = " ";
            current = &parsed.paragraphs.emplace_back(line);
        } else {
            *current += joint + line;
        }
    }
    return parsed;
}

} // namespace q7decl
