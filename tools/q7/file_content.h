// Whole small files.
#pragma once

#include <string>

namespace q7tool
{

/** Throws Failure when the file cannot be read, or has more bytes than that. path: UTF-8. */
std::string contentOf(const std::string& path, std::size_t atMost);

} // namespace q7tool
