// The command line: which commands there are, and what is said when it makes no sense.
#pragma once

#include "failure.h"

#include <string>
#include <vector>

namespace q7tool
{

/** Does what the arguments (UTF-8, without the program's name) ask for. Everything goes to the
 *  console. Returns how the program ends. */
Exit runCommandLine(std::vector<std::string> arguments);

} // namespace q7tool
