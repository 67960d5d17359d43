#include "schema_fault.h"

#include <algorithm>
#include <libxml/tree.h>
#include <string_view>

namespace q7
{
namespace
{

constexpr std::size_t mostFaults = 10'000;

std::string textOf(const xmlChar* text)
{
    return text == nullptr ? std::string() : reinterpret_cast<const char*>(text);
}

// Values of the document stand in messages as they are.
std::string onOneLine(const char* message)
{
    std::string line = message == nullptr ? "" : message;
    for (char& c : line)
        if (static_cast<unsigned char>(c) < ' ')
            c = ' ';
    line.erase(line.find_last_not_of(' ') + 1);
    return line;
}

std::string placeOf(const xmlNode* node)
{
    std::string place;
    for (; node != nullptr; node = node->parent) {
        if (node->type != XML_ELEMENT_NODE && node->type != XML_ATTRIBUTE_NODE)
            continue;
        if (!place.empty())
            place.insert(0, 1, '/');
        place.insert(0, textOf(node->name));
        if (node->type == XML_ATTRIBUTE_NODE)
            place.insert(0, 1, '@');
    }
    return place;
}

std::string_view trimmed(std::string_view text, std::string_view dropped)
{
    const std::size_t first = text.find_first_not_of(dropped);
    if (first == std::string_view::npos)
        return {};
    return text.substr(first, text.find_last_not_of(dropped) - first + 1);
}

// "{namespace}name" without its namespace.
std::string_view localName(std::string_view name)
{
    return name.substr(name.rfind('}') + 1);
}

// How messages tell what would have been right, and how that ends.
struct Expectation {
    std::string_view begin;
    std::string_view end;
    bool isList = false;
};

constexpr Expectation expectations[] = {
    {"Expected is one of ( ", " ).", true},
    {"Expected is ( ", " ).", true},
    {"is not an element of the set {", "}.", true},
    {"The attribute '", "' is required but missing."},
    {"is not accepted by the pattern '", "'."},
    {"does not match the fixed value constraint '", "'."},
    {"valid value of the atomic type '", "'."},
    {"valid value of the list type '", "'."},
    {"valid value of the union type '", "'."},
    {"the allowed minimum length of '", "'."},
    {"the allowed maximum length of '", "'."},
    {"differs from the allowed length of '", "'."},
    {"the minimum value allowed ('", "')."},
    {"the maximum value allowed ('", "')."},
};

std::vector<std::string> splitAtCommas(std::string_view text)
{
    std::vector<std::string> parts;
    while (!text.empty()) {
        const std::size_t comma = std::min(text.find(", "), text.size());
        parts.emplace_back(localName(trimmed(text.substr(0, comma), "' ")));
        text.remove_prefix(std::min(comma + 2, text.size()));
    }
    return parts;
}

std::vector<std::string> expectedIn(std::string_view message)
{
    for (const Expectation& expectation : expectations) {
        // The last: a value of the document may stand before it.
        const std::size_t begin = message.rfind(expectation.begin);
        const std::size_t end = message.rfind(expectation.end);
        if (begin == std::string_view::npos || end == std::string_view::npos ||
            end < begin + expectation.begin.size())
            continue;
        const std::string_view text = message.substr(begin + expectation.begin.size(),
                                                     end - begin - expectation.begin.size());
        return expectation.isList ? splitAtCommas(text)
                                  : std::vector<std::string>{std::string(text)};
    }
    return {};
}

// The attribute that a message begins with: "Element 'e', attribute 'a': ".
std::string attributeIn(std::string_view message)
{
    constexpr std::string_view mark = "', attribute '";
    constexpr std::string_view end = "': ";
    std::size_t begin = message.find(mark);
    if (begin == std::string_view::npos || begin > message.find(end))
        return {};
    begin += mark.size();
    const std::string_view name = message.substr(begin, message.find(end, begin) - begin);
    return "/@" + std::string(localName(name));
}

} // namespace

void addFault(SchemaFaults& faults, const xmlError& error) noexcept
{
    if (error.level == XML_ERR_WARNING)
        return;
    try {
        SchemaFault fault;
        fault.description = onOneLine(error.message);
        fault.line = error.line;
        if (error.domain == XML_FROM_SCHEMASV) {
            fault.place =
                placeOf(static_cast<const xmlNode*>(error.node)) + attributeIn(fault.description);
            fault.expected = expectedIn(fault.description);
        } else if (error.domain == XML_FROM_SCHEMASP && error.file != nullptr) {
            fault.schemaFile = error.file;
        }
        if (faults.size() == mostFaults)
            faults.pop_back();
        faults.push_back(std::move(fault));
    } catch (...) { // out of memory: the engine's result tells that there is a fault
    }
}

} // namespace q7
