#include "interface.h"

#include "castxml_output.h"
#include "header_comment.h"

#include <algorithm>
#include <regex>
#include <set>
#include <sstream>

namespace q7decl
{
namespace
{

std::string_view textOf(std::string_view header, const CommentRange& range, int line)
{
    if (range.end <= range.begin || range.end > header.size())
        throw HeaderError(line, "no comment documents what is declared here");
    return header.substr(range.begin, range.end - range.begin);
}

std::string versionIn(std::string_view header)
{
    std::match_results<std::string_view::const_iterator> match;
    static const std::regex pattern("#define Q7_VERSION_TEXT \"([0-9.]+)\"");
    if (!std::regex_search(header.begin(), header.end(), match, pattern))
        throw HeaderError(1, "Q7_VERSION_TEXT is not defined");
    return match[1].str();
}

// ---------------------------------------------------------------- enumerations

/** The comment of every value of the enumeration that ends its declaration at the first "};". */
std::vector<std::string> valueComments(std::string_view body)
{
    static const std::regex token(R"(/\*\*<?[^]*?\*/|\w+ = )");
    std::vector<std::string> comments;
    std::string pending;
    for (std::regex_iterator<std::string_view::const_iterator>
             next(body.begin(), body.end(), token),
         end;
         next != end; ++next) {
        const std::string text = next->str();
        if (text.substr(0, 4) == "/**<") {
            if (!comments.empty())
                comments.back() = text;
        } else if (text.substr(0, 3) == "/**") {
            pending = text;
        } else {
            comments.push_back(pending);
            pending.clear();
        }
    }
    return comments;
}

std::string joined(const std::vector<std::string>& paragraphs)
{
    std::string text;
    for (const std::string& paragraph : paragraphs)
        text += (text.empty() ? "" : " ") + paragraph;
    return text;
}

Enumeration enumerationOf(const DeclaredEnumeration& declared, std::string_view header)
{
    const std::string_view comment = textOf(header, declared.comment, declared.line);
    Enumeration enumeration{declared.name, joined(parseComment(comment).paragraphs), {}};
    std::string_view body = header.substr(declared.comment.end);
    body = body.substr(0, body.find("};"));
    const std::vector<std::string> comments = valueComments(body);
    for (std::size_t i = 0; i < declared.values.size(); ++i) {
        if (i >= comments.size() || comments[i].empty())
            throw HeaderError(declared.line, declared.values[i].name + " is not documented");
        enumeration.constants.push_back({declared.values[i].name, declared.values[i].value,
                                         joined(parseComment(comments[i]).paragraphs)});
    }
    return enumeration;
}

std::string withoutFullStop(std::string text)
{
    if (!text.empty() && text.back() == '.')
        text.pop_back();
    return text;
}

ResultCode codeOf(const Constant& constant, int line)
{
    static const std::regex form(R"(([^]+)\. Causas: ([^]+)\. O que fazer: ([^]+)\.)");
    std::smatch match;
    if (!std::regex_match(constant.documentation, match, form))
        throw HeaderError(line, constant.name + " does not give meaning, causes and remedy");
    return {constant.name, constant.value, match[1].str(), match[2].str(), match[3].str()};
}

// ---------------------------------------------------------------- functions

Kind kindOf(const std::string& type, const std::string& direction)
{
    struct Way {
        const char* type;
        const char* direction;
        Kind kind;
    };
    static constexpr Way ways[] = {
        {"int", "", Kind::Number},
        {"const char*", "", Kind::Text},
        {"const char*", "bytes", Kind::Bytes},
        {"char*", "out", Kind::Buffer},
        {"int*", "out", Kind::NumberOut},
        {"unsigned int*", "in,out", Kind::CountInOut},
        {"void*", "", Kind::Handle},
    };
    for (const Way& way : ways)
        if (type == way.type && direction == way.direction)
            return way.kind;
    return Kind::Nothing;
}

Kind resultKindOf(const DeclaredFunction& declared)
{
    if (declared.resultType == "int")
        return Kind::Number;
    if (declared.resultType == "char*")
        return Kind::ReturnedText;
    if (declared.resultType == "void")
        return Kind::Nothing;
    throw HeaderError(declared.line, declared.name + " returns " + declared.resultType);
}

std::string declarationOf(const DeclaredFunction& declared)
{
    std::string text = declared.resultType + " " + declared.name + "(";
    for (const DeclaredArgument& argument : declared.arguments)
        text += (&argument == declared.arguments.data() ? "" : ", ") + argument.type + " " +
                argument.name;
    return text + (declared.arguments.empty() ? "void)" : ")");
}

std::vector<std::string> split(const std::string& text, char separator)
{
    std::vector<std::string> parts;
    std::istringstream stream(text);
    for (std::string part; std::getline(stream, part, separator);)
        if (!part.empty())
            parts.push_back(part);
    return parts;
}

/** The parameters, which the comment must name in the order in which they are declared. */
std::vector<Parameter> parametersOf(const DeclaredFunction& declared, const HeaderComment& comment)
{
    std::vector<Parameter> parameters;
    if (comment.parameters.size() != declared.arguments.size())
        throw HeaderError(declared.line, declared.name + " has " +
                                             std::to_string(declared.arguments.size()) +
                                             " arguments, its comment names " +
                                             std::to_string(comment.parameters.size()));
    for (std::size_t i = 0; i < declared.arguments.size(); ++i) {
        const DeclaredArgument& argument = declared.arguments[i];
        const DocumentedParameter& documented = comment.parameters[i];
        if (argument.name != documented.name || documented.text.empty())
            throw HeaderError(declared.line, declared.name + ": " + argument.name +
                                                 " is not documented in its place");
        const Kind kind = kindOf(argument.type, documented.direction);
        if (kind == Kind::Nothing)
            throw HeaderError(declared.line, declared.name + ": no language hands over a " +
                                                 argument.type + " [" + documented.direction + "]");
        parameters.push_back({argument.name, kind, documented.text});
    }
    return parameters;
}

/** Takes over what the function says itself; "\como" fills in the rest afterwards. */
Function functionOf(const DeclaredFunction& declared, const HeaderComment& comment)
{
    static const std::set<std::string> known = {"return", "erros",   "efeito",
                                                "escpos", "exemplo", "como"};
    for (const auto& [name, text] : comment.fields)
        if (known.count(name) == 0)
            throw HeaderError(declared.line, declared.name + ": what is \\" + name + "?");
    if (comment.paragraphs.empty() || !comment.field("exemplo"))
        throw HeaderError(declared.line, declared.name + " lacks its sentence or its example");

    Function function;
    function.name = declared.name;
    function.declaration = declarationOf(declared);
    function.result = resultKindOf(declared);
    function.parameters = parametersOf(declared, comment);
    function.summary = comment.paragraphs.front();
    function.remarks.assign(comment.paragraphs.begin() + 1, comment.paragraphs.end());
    function.resultDocumentation = comment.field("return").value_or("");
    function.errors = split(comment.field("erros").value_or(""), ' ');
    function.effect = comment.field("efeito").value_or("");
    function.command = comment.field("escpos").value_or("");
    function.example = split(*comment.field("exemplo"), '\n');
    return function;
}

void takeOver(Function& function, const Function& other)
{
    if (function.resultDocumentation.empty()) {
        function.resultDocumentation = other.resultDocumentation;
        function.errors = other.errors;
    }
    if (function.effect.empty())
        function.effect = other.effect;
    if (function.command.empty())
        function.command = other.command;
}

void checkComplete(const Function& function, int line, const std::vector<ResultCode>& codes)
{
    const bool hasResult = function.result != Kind::Nothing;
    if (function.effect.empty() || function.command.empty() ||
        function.resultDocumentation.empty() == hasResult)
        throw HeaderError(line, function.name + " lacks \\return, \\efeito or \\escpos");
    for (const std::string& error : function.errors)
        if (std::none_of(codes.begin(), codes.end(),
                         [&](const ResultCode& code) { return code.name == error; }))
            throw HeaderError(line, function.name + ": there is no code " + error);
}

} // namespace

Interface readInterface(const std::string& castxmlOutput, std::string_view header)
{
    const Declared declared = readCastxml(castxmlOutput);
    Interface interface;
    interface.version = versionIn(header);
    interface.introduction = parseComment(header.substr(0, header.find("*/") + 2)).paragraphs;

    for (const DeclaredEnumeration& enumeration : declared.enumerations) {
        interface.enumerations.push_back(enumerationOf(enumeration, header));
        if (enumeration.name == "Q7Result")
            for (Constant& constant : interface.enumerations.back().constants) {
                interface.codes.push_back(codeOf(constant, enumeration.line));
                constant.documentation = interface.codes.back().meaning;
            }
        else
            for (Constant& constant : interface.enumerations.back().constants)
                constant.documentation = withoutFullStop(constant.documentation);
    }

    std::vector<std::string> sources; // of "\como", by function
    for (const DeclaredFunction& function : declared.functions) {
        const HeaderComment comment = parseComment(textOf(header, function.comment, function.line));
        interface.functions.push_back(functionOf(function, comment));
        sources.push_back(comment.field("como").value_or(""));
    }
    for (std::size_t i = 0; i < sources.size(); ++i) {
        Function& function = interface.functions[i];
        const int line = declared.functions[i].line;
        if (!sources[i].empty()) {
            const auto source =
                std::find_if(interface.functions.begin(), interface.functions.end(),
                             [&](const Function& other) { return other.name == sources[i]; });
            if (source == interface.functions.end())
                throw HeaderError(line, function.name + ": there is no function " + sources[i]);
            takeOver(function, *source);
        }
        checkComplete(function, line, interface.codes);
    }
    return interface;
}

} // namespace q7decl
