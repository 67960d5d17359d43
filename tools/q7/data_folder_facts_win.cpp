#include "data_folder_facts.h"

#include "wide_text_win.h"

namespace q7tool
{
namespace
{

std::string dataPathIn(REGSAM view)
{
    HKEY key = nullptr;
    if (::RegOpenKeyExW(HKEY_LOCAL_MACHINE, L"SOFTWARE\\Q7", 0, KEY_QUERY_VALUE | view, &key) !=
        ERROR_SUCCESS)
        return {};
    DWORD bytes = 0;
    DWORD type = 0;
    ::RegQueryValueExW(key, L"data_path", nullptr, &type, nullptr, &bytes);
    std::wstring text(bytes / sizeof(wchar_t) + 1, L'\0');
    bytes = static_cast<DWORD>(text.size() * sizeof(wchar_t));
    const bool isRead =
        ::RegQueryValueExW(key, L"data_path", nullptr, &type, reinterpret_cast<BYTE*>(text.data()),
                           &bytes) == ERROR_SUCCESS &&
        type == REG_SZ;
    ::RegCloseKey(key);
    return isRead ? utf8Of(text.c_str()) : std::string();
}

} // namespace

std::vector<std::pair<std::string, std::string>> registeredFolders()
{
    return {{"No registro, visão de 64 bits", dataPathIn(KEY_WOW64_64KEY)},
            {"No registro, visão de 32 bits", dataPathIn(KEY_WOW64_32KEY)}};
}

} // namespace q7tool
