// A comment of the header taken apart: its paragraphs and its fields ("\param name ...").
#pragma once

#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace q7decl
{

struct DocumentedParameter {
    std::string direction; // "", "bytes", "out", "in,out"
    std::string name;
    std::string text;
};

struct HeaderComment {
    std::vector<std::string> paragraphs;
    std::vector<DocumentedParameter> parameters;
    std::map<std::string, std::string> fields; // "return", "erros", ...; examples by lines

    /** A field's text; nothing where the comment lacks it. */
    std::optional<std::string> field(const std::string& name) const;
};

/** Takes the comment from its opening to its closing stroke. */
HeaderComment parseComment(std::string_view comment);

/** The text without blanks around it. */
std::string trimmed(std::string_view text);

} // namespace q7decl
