#include "registered_data_folder.h"

#include <QFile>
#include <cerrno>
#include <cstdlib>
#include <fcntl.h>
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

// The file's path in the data folder, or its bare name in the working folder.
std::string pathOf(const char* fileName)
{
    const char* folder = registeredText();
    struct stat status = {};
    if (*folder == '\0' || ::stat(folder, &status) != 0 || !S_ISDIR(status.st_mode))
        return fileName;
    std::string path(folder);
    if (path.back() != '/' && path.back() != '\\')
        path += '/';
    return path += fileName;
}

} // namespace

QString registeredDataFolder()
{
    return QFile::decodeName(registeredText());
}

// No Qt here: with the log off this is most of what a command costs besides its bytes. And names
// are bytes, in whatever encoding the process runs.
bool existsInDataFolder(const char* fileName)
{
    return ::access(pathOf(fileName).c_str(), F_OK) == 0;
}

bool appendInDataFolder(const char* fileName, const QByteArray& bytes)
{
    const int file = ::open(pathOf(fileName).c_str(), O_WRONLY | O_APPEND | O_CLOEXEC | O_NOCTTY);
    if (file < 0)
        return errno == ENOENT;
    const char* rest = bytes.constData();
    auto left = static_cast<std::size_t>(bytes.size());
    for (ssize_t written = 0; left > 0 && (written = ::write(file, rest, left)) > 0;) {
        rest += written;
        left -= static_cast<std::size_t>(written);
    }
    ::close(file);
    return true;
}

} // namespace q7
