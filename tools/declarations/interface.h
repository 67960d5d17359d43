// The public interface as the generator sees it: what the header declares and what it says of it.
#pragma once

#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace q7decl
{

/** What is wrong with the header, with its line. */
struct HeaderError : std::runtime_error {
    HeaderError(int line, const std::string& what)
        : std::runtime_error("line " + std::to_string(line) + ": " + what)
    {
    }
};

struct Constant {
    std::string name;
    long value;
    std::string documentation;
};

struct Enumeration {
    std::string name;
    std::string documentation;
    std::vector<Constant> constants;
};

/** A value of Q7Result; the texts are without a full stop at their end. */
struct ResultCode {
    std::string name;
    long value;
    std::string meaning;
    std::string causes;
    std::string remedy;
};

/** What crosses the interface in a place; each language has its own way for each. */
enum class Kind {
    Nothing,
    Number,       // int
    Text,         // const char*: UTF-8 to its first zero byte
    Bytes,        // const char*: as many as another argument says
    Buffer,       // char*: written by the function
    NumberOut,    // int*: written by the function, or left as it was
    CountInOut,   // unsigned int*: read and written
    Handle,       // void*
    ReturnedText, // char*: Latin-1, stays with the caller, never freed
};

struct Parameter {
    std::string name;
    Kind kind;
    std::string documentation;
};

struct Function {
    std::string name;
    std::string declaration; // in C, on one line, without macros
    Kind result;
    std::vector<Parameter> parameters;
    std::string summary;
    std::vector<std::string> remarks; // paragraphs; a list's item begins with "- "
    std::string resultDocumentation;
    std::vector<std::string> errors; // names of result codes
    std::string effect;
    std::string command;
    std::vector<std::string> example; // C statements
};

struct Interface {
    std::string version; // "01.01.00"
    std::vector<std::string> introduction;
    std::vector<Enumeration> enumerations; // Q7Result, whose values' texts are in codes, is one
    std::vector<ResultCode> codes;
    std::vector<Function> functions; // in the header's order
};

/** Reads the interface from castxml's output and the header that this was made from. Throws
 *  HeaderError when the header leaves the form that it describes. */
Interface readInterface(const std::string& castxmlOutput, std::string_view header);

} // namespace q7decl
