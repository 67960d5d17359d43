// Runs a program and catches what it says.
#pragma once

#include <chrono>
#include <map>
#include <string>
#include <vector>

namespace q7test
{

struct ProgramResult {
    std::string output; // standard output and error together
    int exitCode = -1;  // -1 when a signal ended it
    int signal = 0;     // SIGKILL when it overran its time
};

/** Runs a program to its end, at most `limit`. environment: variables on top of this process's. */
ProgramResult runProgram(const std::vector<std::string>& command,
                         const std::map<std::string, std::string>& environment = {},
                         std::chrono::seconds limit = std::chrono::seconds(60));

} // namespace q7test
