// Files opened and closed so that no failure goes unnoticed. Paths are UTF-8.
#pragma once

#include <fstream>
#include <string>

namespace virtual_printer
{

/** Throws std::system_error. */
std::ifstream openForReading(const std::string& path);

/** Throws std::system_error. */
std::ofstream openForWriting(const std::string& path);

/** Closes it. Throws std::runtime_error when not all of it could be written. */
void closeWhole(std::ofstream& file, const std::string& path);

} // namespace virtual_printer
