// Which system this is, for the support.
#pragma once

#include <string>

namespace q7tool
{

std::string systemName();

} // namespace q7tool
