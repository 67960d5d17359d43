#include "console.h"

#include <cstdio>
#include <filesystem>

namespace q7tool
{

std::vector<std::string> programArguments(int argc, char** argv)
{
    return std::vector<std::string>(argv + (argc > 0 ? 1 : 0), argv + argc);
}

void writeOutput(std::string_view utf8)
{
    std::fwrite(utf8.data(), 1, utf8.size(), stdout);
    std::fflush(stdout);
}

void writeError(std::string_view utf8)
{
    std::fwrite(utf8.data(), 1, utf8.size(), stderr);
}

std::string programFolder()
{
    std::error_code error;
    return std::filesystem::read_symlink("/proc/self/exe", error).parent_path().string();
}

} // namespace q7tool
