#include "library_hold.h"

#include <windows.h>

namespace q7
{
namespace
{

HMODULE thisLibrary(DWORD flags)
{
    HMODULE self = nullptr;
    ::GetModuleHandleExW(GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | flags,
                         reinterpret_cast<const wchar_t*>(&thisLibrary), &self);
    return self;
}

} // namespace

// Unloading runs static destructors under the loader's lock, which a thread's end needs too:
// waiting for a thread there would never end.
void holdLibrary()
{
    thisLibrary(0);
}

void releaseLibrary()
{
    ::FreeLibrary(thisLibrary(GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT));
}

void keepLibraryLoaded()
{
    thisLibrary(GET_MODULE_HANDLE_EX_FLAG_PIN);
}

bool processIsEnding()
{
    // In no header.
    const auto query = reinterpret_cast<BOOLEAN(WINAPI*)()>(reinterpret_cast<void (*)()>(
        ::GetProcAddress(::GetModuleHandleW(L"ntdll.dll"), "RtlDllShutdownInProgress")));
    return query != nullptr && query() != FALSE;
}

} // namespace q7
