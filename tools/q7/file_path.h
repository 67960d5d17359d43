// File names: UTF-8 in this program, the system's own form when a file is opened.
#pragma once

#include <filesystem>
#include <string>

namespace q7tool
{

inline std::filesystem::path filePath(const std::string& utf8)
{
    return std::filesystem::u8path(utf8);
}

inline std::string utf8Path(const std::filesystem::path& path)
{
    return path.u8string();
}

} // namespace q7tool
