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

} // namespace q7tool
