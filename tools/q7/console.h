// The platform's side of a program that is called by hand: its arguments and what it writes, as
// UTF-8 whatever the console's own encoding.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace q7tool
{

/** The arguments behind the program's name. */
std::vector<std::string> programArguments(int argc, char** argv);

void writeOutput(std::string_view utf8);
void writeError(std::string_view utf8);

/** The folder that this program lies in, without a separator at its end. */
std::string programFolder();

} // namespace q7tool
