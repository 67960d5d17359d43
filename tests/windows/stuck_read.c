/* A USB printer, model VESPA, whose driver lets go of no read: stuck_read DLL PATH. Its device path,
 * which the system has given it, leads to a named pipe, which knows no time-outs; and the library is
 * given a function to cancel reads that does nothing. */
#include "host.h"
#include "q7_impressora.h"

#include <stdio.h>
#include <wchar.h>
#include <windows.h>

#include <winternl.h>

#define PIPE L"q7_stuck_printer"

/* One opening of the device, as its driver sees it. */
typedef struct {
    HANDLE pipe;
    volatile LONG received; /* bytes */
} Opening;

static DWORD WINAPI receive(void* opening)
{
    Opening* self = opening;
    OVERLAPPED operation = {.hEvent = CreateEventA(NULL, TRUE, FALSE, NULL)};
    DWORD count = 0;
    /* A client that is there already leaves nothing to wait for: the operation never starts. */
    if (!ConnectNamedPipe(self->pipe, &operation) && GetLastError() == ERROR_IO_PENDING)
        GetOverlappedResult(self->pipe, &operation, &count, TRUE);
    char bytes[256];
    for (;;) {
        if (!ReadFile(self->pipe, bytes, sizeof bytes, NULL, &operation) &&
            GetLastError() != ERROR_IO_PENDING)
            break;
        if (!GetOverlappedResult(self->pipe, &operation, &count, TRUE))
            break;
        InterlockedExchangeAdd(&self->received, (LONG)count);
    }
    CloseHandle(operation.hEvent);
    return 0;
}

static void offer(Opening* opening)
{
    opening->received = 0;
    opening->pipe =
        CreateNamedPipeW(L"\\\\.\\pipe\\" PIPE, PIPE_ACCESS_DUPLEX | FILE_FLAG_OVERLAPPED, 0,
                         PIPE_UNLIMITED_INSTANCES, 4096, 4096, 0, NULL);
    CloseHandle(CreateThread(NULL, 0, receive, opening, 0, NULL));
}

static void answer(Opening* opening, char byte)
{
    OVERLAPPED operation = {.hEvent = CreateEventA(NULL, TRUE, FALSE, NULL)};
    DWORD count = 0;
    WriteFile(opening->pipe, &byte, 1, NULL, &operation);
    GetOverlappedResult(opening->pipe, &operation, &count, TRUE);
    CloseHandle(operation.hEvent);
}

NTSTATUS NTAPI NtCreateSymbolicLinkObject(HANDLE* link, ACCESS_MASK access, OBJECT_ATTRIBUTES* name,
                                          UNICODE_STRING* target);

/* For the life of this process. (Wine's own function for it takes drive letters alone.) */
static int leadToPipe(const char* devicePath)
{
    WCHAR text[300];
    UNICODE_STRING name;
    UNICODE_STRING target;
    OBJECT_ATTRIBUTES attributes;
    HANDLE link = NULL;
    swprintf(text, sizeof text / sizeof *text, L"\\DosDevices\\%hs", devicePath + 4);
    RtlInitUnicodeString(&name, text);
    RtlInitUnicodeString(&target, L"\\Device\\NamedPipe\\" PIPE);
    InitializeObjectAttributes(&attributes, &name, OBJ_CASE_INSENSITIVE, NULL, NULL);
    return NtCreateSymbolicLinkObject(&link, GENERIC_READ, &attributes, &target) == 0;
}

static BOOL WINAPI cancelNothing(HANDLE thread)
{
    (void)thread;
    return FALSE;
}

/* Replaces the function in the library's table of imports. Returns whether it was there. */
static int letNothingBeCancelled(HMODULE library)
{
    const FARPROC wanted = GetProcAddress(GetModuleHandleA("kernel32"), "CancelSynchronousIo");
    const char* base = (const char*)library;
    const IMAGE_NT_HEADERS* headers =
        (const IMAGE_NT_HEADERS*)(base + ((const IMAGE_DOS_HEADER*)base)->e_lfanew);
    const IMAGE_IMPORT_DESCRIPTOR* from =
        (const IMAGE_IMPORT_DESCRIPTOR*)(base + headers->OptionalHeader
                                                    .DataDirectory[IMAGE_DIRECTORY_ENTRY_IMPORT]
                                                    .VirtualAddress);
    for (; from->Name != 0; ++from)
        for (FARPROC* entry = (FARPROC*)(base + from->FirstThunk); *entry != NULL; ++entry)
            if (*entry == wanted) {
                DWORD before;
                VirtualProtect(entry, sizeof *entry, PAGE_READWRITE, &before);
                *entry = (FARPROC)(void (*)(void))cancelNothing;
                return 1;
            }
    return 0;
}

static int unloadedWithin(const char* path, DWORD limitMs)
{
    const DWORD start = GetTickCount();
    while (GetModuleHandleA(path) != NULL && GetTickCount() - start < limitMs)
        Sleep(10);
    return GetModuleHandleA(path) == NULL;
}

int main(int argc, char** argv)
{
    if (argc != 3)
        return 2;
    if (!leadToPipe(argv[2]))
        return 2;
    Opening first;
    Opening second;
    offer(&first);
    void* library = loadLibrary(argv[1]);
    USE_EXPORT(library, AbreConexaoImpressora);
    USE_EXPORT(library, StatusImpressora);
    USE_EXPORT(library, ImpressaoTexto);
    if (!check("driver that lets go of nothing", letNothingBeCancelled(library), "no such import"))
        return exitStatus();

    int result = pAbreConexaoImpressora(1, "VESPA", "", 0);
    check("open", result == 0, "%d", result);
    DWORD start = GetTickCount();
    result = pStatusImpressora(3);
    check("no reply in time", result == Q7_ERR_NO_REPLY && GetTickCount() - start < 2500,
          "%d after %lu ms", result, GetTickCount() - start);

    offer(&second);
    start = GetTickCount();
    result = pImpressaoTexto("depois\n", 0, 0, 0);
    check("printing goes on", result == 7 && GetTickCount() - start < 1000, "%d after %lu ms",
          result, GetTickCount() - start);
    start = GetTickCount();
    while (second.received < 8 && GetTickCount() - start < 5000)
        Sleep(5);
    check("through another handle", second.received >= 8, "%ld bytes", second.received);

    answer(&first, 0x12); /* paper present */
    result = pStatusImpressora(3);
    check("the stuck read's bytes are the next reply", result == 5, "%d", result);

    result = pStatusImpressora(3);
    check("stuck again", result == Q7_ERR_NO_REPLY, "%d", result);
    FreeLibrary(library);
    check("loaded as long as a read is stuck", GetModuleHandleA(argv[1]) != NULL, "gone");
    DisconnectNamedPipe(second.pipe);
    check("unloaded once it ends", unloadedWithin(argv[1], 5000), "still there");
    return exitStatus();
}
