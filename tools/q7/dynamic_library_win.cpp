#include "dynamic_library.h"

#include "wide_text_win.h"

namespace q7tool::dynamic
{
namespace
{

std::string systemMessage(DWORD number)
{
    wchar_t* text = nullptr;
    const DWORD length = ::FormatMessageW(
        FORMAT_MESSAGE_ALLOCATE_BUFFER | FORMAT_MESSAGE_FROM_SYSTEM | FORMAT_MESSAGE_IGNORE_INSERTS,
        nullptr, number, 0, reinterpret_cast<wchar_t*>(&text), 0, nullptr);
    std::string message = utf8Of(std::wstring_view(text, length));
    ::LocalFree(text);
    while (!message.empty() && static_cast<unsigned char>(message.back()) <= ' ')
        message.pop_back();
    return message + " (erro " + std::to_string(number) + " do Windows)";
}

} // namespace

const char* const fileName = "Q7_Impressora.dll";
const bool hasLibraryPath = false;

void* load(const std::string& path, std::string& error)
{
    HMODULE library =
        ::LoadLibraryExW(wideOf(path).c_str(), nullptr, LOAD_WITH_ALTERED_SEARCH_PATH);
    if (library == nullptr)
        error = systemMessage(::GetLastError());
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
