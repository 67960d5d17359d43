// What castxml says of the header: functions and enumerations with their types, and where their
// comments are.
#pragma once

#include <string>
#include <vector>

namespace q7decl
{

/** Bytes of the header; both 0 where there is no comment. */
struct CommentRange {
    std::size_t begin = 0;
    std::size_t end = 0;
};

struct DeclaredValue {
    std::string name;
    long value;
};

struct DeclaredEnumeration {
    std::string name;
    int line;
    CommentRange comment;
    std::vector<DeclaredValue> values;
};

struct DeclaredArgument {
    std::string name;
    std::string type; // as C writes it: "const char*"
};

struct DeclaredFunction {
    std::string name;
    int line;
    CommentRange comment;
    std::string resultType;
    std::vector<DeclaredArgument> arguments;
};

/** In the header's order. */
struct Declared {
    std::vector<DeclaredEnumeration> enumerations;
    std::vector<DeclaredFunction> functions;
};

/** Throws std::runtime_error for anything that is not castxml's output. */
Declared readCastxml(const std::string& output);

} // namespace q7decl
