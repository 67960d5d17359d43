#include "registered_data_folder.h"

#include <QFile>
#include <QSettings>
#include <QStringList>

#include <windows.h>

#include <string>

namespace q7
{
namespace
{

// Most machines have no key at all; then nothing else is asked.
bool keyExistsInOwnView()
{
    HKEY key = nullptr;
    if (::RegOpenKeyExW(HKEY_LOCAL_MACHINE, L"SOFTWARE\\Q7", 0, KEY_QUERY_VALUE, &key) !=
        ERROR_SUCCESS)
        return false;
    ::RegCloseKey(key);
    return true;
}

bool isFolder(const std::wstring& path)
{
    const DWORD attributes = ::GetFileAttributesW(path.c_str());
    return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
}

// The file's path in the data folder, or its bare name in the working folder.
std::wstring pathOf(const char* fileName)
{
    std::wstring path = registeredDataFolder().toStdWString();
    if (path.empty() || !isFolder(path))
        path.clear();
    else if (path.back() != L'/' && path.back() != L'\\')
        path += L'/';
    return path.append(fileName, fileName + std::char_traits<char>::length(fileName));
}

} // namespace

// The key is looked for in the process's own view of the registry and read in the 64-bit one:
// installers write the value there and make the key in both.
QString registeredDataFolder()
{
    if (!keyExistsInOwnView())
        return {};
    const QSettings key("HKEY_LOCAL_MACHINE\\SOFTWARE\\Q7", QSettings::Registry64Format);
    return key.value("data_path").toString();
}

// No look at the folder's contents: one question to the file system for the folder, one for the
// file.
bool existsInDataFolder(const char* fileName)
{
    return ::GetFileAttributesW(pathOf(fileName).c_str()) != INVALID_FILE_ATTRIBUTES;
}

bool appendInDataFolder(const char* fileName, const QByteArray& bytes)
{
    QFile file(QString::fromStdWString(pathOf(fileName)));
    if (!file.open(QIODevice::WriteOnly | QIODevice::Append | QIODevice::ExistingOnly |
                   QIODevice::Unbuffered))
        return !existsInDataFolder(fileName);
    file.write(bytes);
    return true;
}

} // namespace q7
