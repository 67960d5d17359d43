// Runs a program and catches what it says.
#pragma once

#include <string>
#include <vector>

namespace q7test
{

struct ProgramResult {
    std::string output; // standard output and error together
    int exitCode = -1;  // -1 when a signal ended it, or it did not end within a minute
};

/** Runs a program to its end. command: its file and its arguments. */
ProgramResult runProgram(const std::vector<std::string>& command);

} // namespace q7test
