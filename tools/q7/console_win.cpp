#include "console.h"

#include "wide_text_win.h"

#include <cstdio>
#include <windows.h>

#include <shellapi.h>

namespace q7tool
{
namespace
{

// A console takes text, a file or a pipe takes bytes.
void write(std::FILE* file, DWORD standardHandle, std::string_view utf8)
{
    HANDLE handle = ::GetStdHandle(standardHandle);
    DWORD mode = 0;
    if (::GetConsoleMode(handle, &mode) == 0) {
        std::fwrite(utf8.data(), 1, utf8.size(), file);
        std::fflush(file);
        return;
    }
    const std::wstring text = wideOf(utf8);
    constexpr std::size_t most = 8192; // older systems refuse long ones
    for (std::size_t at = 0; at < text.size(); at += most) {
        DWORD written = 0;
        ::WriteConsoleW(handle, text.data() + at,
                        static_cast<DWORD>(std::min(most, text.size() - at)), &written, nullptr);
    }
}

} // namespace

std::vector<std::string> programArguments(int /*argc*/, char** /*argv*/)
{
    // The narrow ones have lost what the system's code page lacks.
    int count = 0;
    wchar_t** wide = ::CommandLineToArgvW(::GetCommandLineW(), &count);
    std::vector<std::string> arguments;
    for (int i = 1; i < count; ++i)
        arguments.push_back(utf8Of(wide[i]));
    ::LocalFree(wide);
    return arguments;
}

void writeOutput(std::string_view utf8)
{
    write(stdout, STD_OUTPUT_HANDLE, utf8);
}

void writeError(std::string_view utf8)
{
    write(stderr, STD_ERROR_HANDLE, utf8);
}

std::string programFolder()
{
    std::wstring path(32768, L'\0');
    path.resize(::GetModuleFileNameW(nullptr, path.data(), static_cast<DWORD>(path.size())));
    return utf8Of(path.substr(0, path.find_last_of(L"\\/")));
}

} // namespace q7tool
