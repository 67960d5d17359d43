#include "files.h"

#include <cerrno>
#include <filesystem>
#include <stdexcept>
#include <system_error>

namespace virtual_printer
{
namespace
{

template <typename Stream> Stream opened(const std::string& path)
{
    Stream file(std::filesystem::u8path(path), std::ios::binary);
    if (!file) {
        throw std::system_error(errno, std::generic_category(), path);
    }
    return file;
}

} // namespace

std::ifstream openForReading(const std::string& path)
{
    return opened<std::ifstream>(path);
}

std::ofstream openForWriting(const std::string& path)
{
    return opened<std::ofstream>(path);
}

void closeWhole(std::ofstream& file, const std::string& path)
{
    file.close();
    if (!file) {
        throw std::runtime_error(path + ": could not be written whole");
    }
}

} // namespace virtual_printer
