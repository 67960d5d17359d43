// Small questions to UTF-8 text.
#pragma once

#include <string>
#include <string_view>

namespace q7tool
{

/** How many characters, not bytes. */
std::size_t characterCount(std::string_view utf8);

/** ASCII letters alone change. */
std::string upperCase(std::string_view text);

/** The text with a large first letter and a full stop. */
std::string asSentence(std::string_view text);

bool startsWith(std::string_view text, std::string_view start);
bool endsWith(std::string_view text, std::string_view end);

/** "1B 40" */
std::string hexText(std::string_view bytes);

/** Whole text as a number; false when it is none or out of range. */
bool toNumber(std::string_view text, int& number);

} // namespace q7tool
