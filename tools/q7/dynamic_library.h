// The platform's side of loading a shared library.
#pragma once

#include <string>

namespace q7tool
{

/** Names and paths are UTF-8. */
namespace dynamic
{
/** Null when it cannot be loaded; error then says why, in the system's words. */
void* load(const std::string& path, std::string& error);
/** Null when there is no such function. */
void* function(void* library, const char* name);
/** The file that the library was loaded from. */
std::string pathOf(void* library, const std::string& asLoaded);

/** "Windows" or "Linux". */
extern const char* const system;
/** How the product's library is called on this system. */
extern const char* const fileName;
/** Whether the system also looks in places of its own for a library named without a folder. */
extern const bool hasLibraryPath;
} // namespace dynamic

} // namespace q7tool
