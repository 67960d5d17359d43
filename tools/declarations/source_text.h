// Making source text: wrapping, comments, literals, lists of arguments.
#pragma once

#include "interface.h"

#include <functional>
#include <set>
#include <string>
#include <vector>

namespace q7decl
{

/** Wraps a text at blanks into lines of at most so many characters; one with none stays whole. */
std::vector<std::string> wrapped(const std::string& text, std::size_t width);

/** The text wrapped, each line behind the prefix, within 100 characters. */
std::string comment(const std::string& prefix, const std::string& text);

/** What the function's documentation says beside its sentence and its arguments: remarks, result,
 *  codes, effect, command; one paragraph each. */
std::vector<std::string> details(const Function& function);

/** The texts of all the items with a separator between. */
template <typename Item, typename Write>
std::string list(const std::vector<Item>& items, const std::string& separator, Write write)
{
    std::string text;
    for (const Item& item : items)
        text += (&item == items.data() ? "" : separator) + write(item);
    return text;
}

/** Replaces every occurrence. */
std::string replaced(std::string text, const std::string& from, const std::string& to);

/** The name, with an underscore behind it when the language has reserved it. */
std::string unreserved(const std::string& name, const std::set<std::string>& reservedLowerCase);

/** A literal of the languages that quote and escape as C does. */
std::string doubleQuoted(const std::string& text);

/** The text with what has a meaning in XML and HTML escaped. */
std::string asMarkup(const std::string& text);

/** What an application shows of a result code: its meaning and what helps. */
std::string messageOf(const ResultCode& code);

/** The cases of a switch over the codes, returning their messages, as C# and Java write them. */
std::string messageCases(const std::vector<ResultCode>& codes);

/** The note that the file is made by a program. */
extern const char* const generatedNote;

bool hasTextArgument(const Function& function);

/** The same text in code page 1252 with CR LF, as Windows editors of old expect. Throws
 *  std::runtime_error for a character that it lacks. */
std::string asWindowsText(const std::string& utf8);

} // namespace q7decl
