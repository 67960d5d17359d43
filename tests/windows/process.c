#include "process.h"

#include <windows.h>

#include <tlhelp32.h>

int countThreads(void)
{
    THREADENTRY32 entry = {.dwSize = sizeof entry};
    HANDLE snapshot = CreateToolhelp32Snapshot(TH32CS_SNAPTHREAD, 0);
    int count = 0;
    for (BOOL more = Thread32First(snapshot, &entry); more; more = Thread32Next(snapshot, &entry))
        count += entry.th32OwnerProcessID == GetCurrentProcessId();
    CloseHandle(snapshot);
    return count;
}

unsigned nextHandleValue(void)
{
    HANDLE event = CreateEventA(NULL, TRUE, FALSE, NULL);
    CloseHandle(event);
    return (unsigned)(UINT_PTR)event;
}
