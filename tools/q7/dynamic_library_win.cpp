#include "dynamic_library.h"

#include "system_name.h"
#include "wide_text_win.h"

namespace q7tool::dynamic
{
const char* const system = "Windows";
const char* const fileName = "Q7_Impressora.dll";
const bool hasLibraryPath = false;

void* load(const std::string& path, std::string& error)
{
    HMODULE library =
        ::LoadLibraryExW(wideOf(path).c_str(), nullptr, LOAD_WITH_ALTERED_SEARCH_PATH);
    if (library == nullptr) {
        const DWORD number = ::GetLastError();
        error = systemMessage(static_cast<int>(number)) + " (erro " + std::to_string(number) +
                " do Windows)";
    }
    return library;
}

void* function(void* library, const char* name)
{
    return reinterpret_cast<void*>(::GetProcAddress(static_cast<HMODULE>(library), name));
}

std::string pathOf(void* library, const std::string& /*asLoaded*/)
{
    std::wstring path(32768, L'\0');
    path.resize(::GetModuleFileNameW(static_cast<HMODULE>(library), path.data(),
                                     static_cast<DWORD>(path.size())));
    return utf8Of(path);
}

} // namespace q7tool::dynamic
