// Which system this is, and what it says of its error numbers.
#pragma once

#include <string>

namespace q7tool
{

std::string systemName();

/** In the system's own words and language, UTF-8; may be empty where the number says nothing. */
std::string systemMessage(int error);

} // namespace q7tool
