// Between this program's UTF-8 and the system's UTF-16.
#pragma once

#include <string>
#include <string_view>
#include <windows.h>

namespace q7tool
{

inline std::wstring wideOf(std::string_view utf8)
{
    const auto size = static_cast<int>(utf8.size());
    const int length = ::MultiByteToWideChar(CP_UTF8, 0, utf8.data(), size, nullptr, 0);
    std::wstring wide(static_cast<std::size_t>(length), L'\0');
    ::MultiByteToWideChar(CP_UTF8, 0, utf8.data(), size, wide.data(), length);
    return wide;
}

inline std::string utf8Of(std::wstring_view wide)
{
    const auto size = static_cast<int>(wide.size());
    const int length =
        ::WideCharToMultiByte(CP_UTF8, 0, wide.data(), size, nullptr, 0, nullptr, nullptr);
    std::string utf8(static_cast<std::size_t>(length), '\0');
    ::WideCharToMultiByte(CP_UTF8, 0, wide.data(), size, utf8.data(), length, nullptr, nullptr);
    return utf8;
}

} // namespace q7tool
