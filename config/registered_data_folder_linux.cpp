#include "registered_data_folder.h"

#include <QFile>
#include <cstdlib>
#include <string>
#include <sys/stat.h>
#include <unistd.h>

namespace q7
{
namespace
{

// Empty when unset.
const char* registeredText()
{
    const char* text = std::getenv("Q7_DATA_PATH"); // NOLINT(concurrency-mt-unsafe)
    return text == nullptr ? "" : text;
}

} // namespace

QString registeredDataFolder()
{
    return QFile::decodeName(registeredText());
}

// No Qt here: with the log off this is most of what a command costs besides its bytes.
bool existsInDataFolder(const char* fileName)
{
    const char* folder = registeredText();
    if (*folder != '\0') {
        std::string path(folder);
        if (path.back() != '/' && path.back() != '\\')
            path += '/';
        path += fileName;
        if (::access(path.c_str(), F_OK) == 0)
            return true;
        struct stat status = {};
        if (::stat(folder, &status) == 0 && S_ISDIR(status.st_mode))
            return false;
    }
    return ::access(fileName, F_OK) == 0;
}

} // namespace q7
