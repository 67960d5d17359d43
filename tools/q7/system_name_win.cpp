#include "system_name.h"

#include "wide_text_win.h"

namespace q7tool
{

// GetVersionEx tells programs what they were built for; the kernel's own function the truth.
std::string systemName()
{
    using RtlGetVersion = LONG(WINAPI*)(OSVERSIONINFOW*);
    OSVERSIONINFOW version = {};
    version.dwOSVersionInfoSize = sizeof version;
    const auto getVersion = reinterpret_cast<RtlGetVersion>(reinterpret_cast<void*>(
        ::GetProcAddress(::GetModuleHandleW(L"ntdll.dll"), "RtlGetVersion")));
    if (getVersion == nullptr || getVersion(&version) != 0)
        return "Windows";
    BOOL isOn64 = FALSE;
    ::IsWow64Process(::GetCurrentProcess(), &isOn64);
    return "Windows " + std::to_string(version.dwMajorVersion) + '.' +
           std::to_string(version.dwMinorVersion) + '.' + std::to_string(version.dwBuildNumber) +
           (isOn64 != FALSE ? " de 64 bits" : " de 32 bits");
}

std::string systemMessage(int error)
{
    wchar_t* text = nullptr;
    const DWORD length = ::FormatMessageW(
        FORMAT_MESSAGE_ALLOCATE_BUFFER | FORMAT_MESSAGE_FROM_SYSTEM | FORMAT_MESSAGE_IGNORE_INSERTS,
        nullptr, static_cast<DWORD>(error), 0, reinterpret_cast<wchar_t*>(&text), 0, nullptr);
    std::string message = utf8Of(std::wstring_view(text, length));
    ::LocalFree(text);
    while (!message.empty() && static_cast<unsigned char>(message.back()) <= ' ')
        message.pop_back();
    return message;
}

} // namespace q7tool
