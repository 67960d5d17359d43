/* Loads, uses from two threads and unloads the library, again and again: cycles DLL COUNT PORT.
 * PORT is a printer's, model VANTA, on this machine. */
#include "host.h"
#include "q7_impressora.h"

#include <stdio.h>
#include <stdlib.h>
#include <string.h>
#include <windows.h>

#include <tlhelp32.h>

static DWORD WINAPI printFromSecondThread(void* library)
{
    USE_EXPORT(library, ImpressaoTexto);
    USE_EXPORT(library, StatusImpressora);
    if (pImpressaoTexto("segunda thread\n", 0, 0, 0) < 1)
        return 0;
    return pStatusImpressora(3) == 5; /* paper present */
}

/* One life of the library. Returns what went wrong, or null. */
static const char* useOnce(const char* path, int port)
{
    void* library = loadLibrary(path);
    USE_EXPORT(library, GetVersaoDLL);
    USE_EXPORT(library, AbreConexaoImpressora);
    USE_EXPORT(library, ImpressaoTexto);
    USE_EXPORT(library, FechaConexaoImpressora);

    if (strcmp(pGetVersaoDLL(), "01.01.00") != 0)
        return "GetVersaoDLL";
    if (pAbreConexaoImpressora(3, "VANTA", "127.0.0.1", port) != 0)
        return "AbreConexaoImpressora";
    if (pImpressaoTexto("primeira thread\n", 0, 0, 0) < 1)
        return "ImpressaoTexto";
    HANDLE thread = CreateThread(NULL, 0, printFromSecondThread, library, 0, NULL);
    DWORD printed = 0;
    WaitForSingleObject(thread, INFINITE);
    GetExitCodeThread(thread, &printed);
    CloseHandle(thread);
    if (!printed)
        return "the second thread";
    if (pFechaConexaoImpressora() != 0)
        return "FechaConexaoImpressora";
    if (!FreeLibrary(library))
        return "FreeLibrary";
    if (GetModuleHandleA(path) != NULL)
        return "the library stayed loaded";
    return NULL;
}

static int countThreads(void)
{
    THREADENTRY32 entry = {.dwSize = sizeof entry};
    HANDLE snapshot = CreateToolhelp32Snapshot(TH32CS_SNAPTHREAD, 0);
    int count = 0;
    for (BOOL more = Thread32First(snapshot, &entry); more; more = Thread32Next(snapshot, &entry))
        count += entry.th32OwnerProcessID == GetCurrentProcessId();
    CloseHandle(snapshot);
    return count;
}

/* The system gives new handles the lowest free value, so leaked ones push this up. */
static unsigned nextHandleValue(void)
{
    HANDLE event = CreateEventA(NULL, TRUE, FALSE, NULL);
    CloseHandle(event);
    return (unsigned)(UINT_PTR)event;
}

int main(int argc, char** argv)
{
    if (argc != 4)
        return 2;
    const char* path = argv[1];
    const int count = atoi(argv[2]);
    const int port = atoi(argv[3]);
    int threads = 0;
    unsigned handle = 0;
    /* What the system itself sets up at first use is there after a few. */
    for (int cycle = 1; cycle <= count; ++cycle) {
        const char* wrong = useOnce(path, port);
        if (wrong != NULL)
            return check("cycles", 0, "%s, in cycle %d", wrong, cycle), exitStatus();
        if (cycle == count / 10) {
            threads = countThreads();
            handle = nextHandleValue();
        }
    }
    check("cycles", 1, "");
    check("no thread left behind", countThreads() <= threads, "%d, then %d", threads,
          countThreads());
    check("no handle left behind", nextHandleValue() <= handle + 16, "%u, then %u", handle,
          nextHandleValue());
    return exitStatus();
}
