#include "data_folder.h"

#include "registered_data_folder.h"

#include <string_view>

namespace q7
{
namespace
{

// Empty where the working folder is the data folder.
NativePath usableRegisteredFolder()
{
    NativePath folder = registeredDataFolder();
    if (!folder.empty() && !folderExists(folder))
        folder.clear();
    return folder;
}

} // namespace

NativePath dataFolder()
{
    NativePath folder = usableRegisteredFolder();
    if (folder.empty())
        (folder = workingFolder()) += '/';
    return folder;
}

NativePath pathInDataFolder(const char* fileName)
{
    NativePath path = usableRegisteredFolder();
    if (!path.empty() && path.back() != '/' && path.back() != '\\')
        path += '/';
    const std::string_view name(fileName);
    return path.append(name.begin(), name.end());
}

} // namespace q7
