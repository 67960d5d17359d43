/* One program that uses the library, told by lines on its standard input what to do: session DLL.
 * For each line it says the result and the milliseconds that the call took:
 *
 *   load | free                     says whether the library is loaded then
 *   open KIND ADDRESS NUMBER | close
 *   text BYTES                      prints numbered lines, so many bytes together, in one call
 *   sale FILE OPTIONS | cancellation FILE OPTIONS SIGNATURE | note FILE OPTIONS
 *   status KIND | id KIND
 *   elsewhere COMMAND...            in a thread of its own
 *   nothing NUMBER                  calls the empty library, which gives the number back
 *   hold PORT | release             opens a serial port beside the library
 *   unstoppable                     from here on the system ends no operation that is under way
 *   threads | handles               says how many the process has; handles, up to a constant */
#include "host.h"
#include "q7_impressora.h"

#include <fcntl.h>
#include <io.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>
#include <windows.h>

#include <tlhelp32.h>

static const char* dll;
static void* library;
static HANDLE held = INVALID_HANDLE_VALUE;
static long lineNumber;

static int printLines(const char* bytes)
{
    const size_t size = (size_t)atol(bytes);
    char* text = malloc(size + 64);
    for (size_t i = 0; i < size; i += 64)
        snprintf(text + i, 65, "%-62.06ld.\n", ++lineNumber);
    text[size] = '\0';
    const int result = TYPED_EXPORT(library, ImpressaoTexto)(text, 0, 0, 0);
    free(text);
    return result;
}

/* The note's CSC is the campaigns' own. */
static int printDocument(const char* kind, const char* path, int options, const char* signature)
{
    char* xml = contentOf(path);
    int result;
    if (strcmp(kind, "sale") == 0)
        result = TYPED_EXPORT(library, ImprimeXMLSAT)(xml, options);
    else if (strcmp(kind, "cancellation") == 0)
        result = TYPED_EXPORT(library, ImprimeXMLCancelamentoSAT)(xml, signature, options);
    else
        result = TYPED_EXPORT(library, ImprimeXMLNFCe)(xml, 1, "TOKEN", options);
    free(xml);
    return result;
}

static int freeTheLibrary(void)
{
    FreeLibrary(library);
    library = NULL;
    return GetModuleHandleA(dll) != NULL;
}

static int load(void)
{
    library = loadLibrary(dll);
    return GetModuleHandleA(dll) != NULL;
}

static int holdPort(const char* name)
{
    char path[100];
    snprintf(path, sizeof path, "\\\\.\\%s", name);
    held = CreateFileA(path, GENERIC_READ | GENERIC_WRITE, 0, NULL, OPEN_EXISTING, 0, NULL);
    return held != INVALID_HANDLE_VALUE;
}

/* A driver that lets go of nothing: the function that ends operations does nothing and says so. */
static int makeUnstoppable(void)
{
#ifdef _WIN64
    static const unsigned char returnFalse[] = {0x33, 0xC0, 0xC3};
#else
    static const unsigned char returnFalse[] = {0x33, 0xC0, 0xC2, 0x08, 0x00};
#endif
    void (*function)(void) =
        (void (*)(void))GetProcAddress(GetModuleHandleA("kernel32"), "CancelIoEx");
    void* code = *(void**)&function;
    DWORD before;
    return VirtualProtect(code, sizeof returnFalse, PAGE_EXECUTE_READWRITE, &before) &&
           memcpy(code, returnFalse, sizeof returnFalse) != NULL;
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

/* The system gives new handles the lowest free value, so leaked ones push this up. (Wine counts no
 * handles.) */
static int handlesInUse(void)
{
    HANDLE event = CreateEventA(NULL, TRUE, FALSE, NULL);
    CloseHandle(event);
    return (int)(UINT_PTR)event / 4;
}

static DWORD WINAPI obeyInThread(void* words);

static int obeyElsewhere(char* const* words)
{
    DWORD result = 0;
    HANDLE thread = CreateThread(NULL, 0, obeyInThread, (void*)words, 0, NULL);
    WaitForSingleObject(thread, INFINITE);
    GetExitCodeThread(thread, &result);
    CloseHandle(thread);
    return (int)result;
}

/* Returns the command's result, or writes it to text (100 bytes) where it is no number. */
static int obey(const char* command, char* const* argument, char* text)
{
    if (strcmp(command, "load") == 0)
        return load();
    if (strcmp(command, "free") == 0)
        return freeTheLibrary();
    if (strcmp(command, "open") == 0)
        return TYPED_EXPORT(library, AbreConexaoImpressora)(atoi(argument[0]), argument[3],
                                                            argument[1], atoi(argument[2]));
    if (strcmp(command, "close") == 0)
        return TYPED_EXPORT(library, FechaConexaoImpressora)();
    if (strcmp(command, "text") == 0)
        return printLines(argument[0]);
    if (strcmp(command, "sale") == 0 || strcmp(command, "cancellation") == 0 ||
        strcmp(command, "note") == 0)
        return printDocument(command, argument[0], atoi(argument[1]), argument[2]);
    if (strcmp(command, "status") == 0)
        return TYPED_EXPORT(library, StatusImpressora)(atoi(argument[0]));
    if (strcmp(command, "id") == 0)
        return snprintf(text, 100, "%s", TYPED_EXPORT(library, IdImpressora)(atoi(argument[0])));
    if (strcmp(command, "elsewhere") == 0)
        return obeyElsewhere(argument);
    if (strcmp(command, "nothing") == 0)
        return ((int (*)(int))exportOf(library, "doNothing"))(atoi(argument[0]));
    if (strcmp(command, "hold") == 0)
        return holdPort(argument[0]);
    if (strcmp(command, "release") == 0)
        return CloseHandle(held);
    if (strcmp(command, "unstoppable") == 0)
        return makeUnstoppable();
    if (strcmp(command, "threads") == 0)
        return countThreads();
    if (strcmp(command, "handles") == 0)
        return handlesInUse();
    fprintf(stderr, "unknown command %s\n", command);
    exit(2);
}

static DWORD WINAPI obeyInThread(void* words)
{
    char* const* argument = words;
    char text[100];
    return (DWORD)obey(argument[0], argument + 1, text);
}

int main(int argc, char** argv)
{
    if (argc != 2)
        return 2;
    dll = argv[1];
    _setmode(_fileno(stdout), _O_BINARY);
    load();
    char line[1000];
    while (fgets(line, sizeof line, stdin) != NULL) {
        char* argument[5] = {"", "", "", "", ""};
        char text[100] = "";
        int count = 0;
        for (char* word = strtok(line, " \r\n"); word != NULL && count < 5;
             word = strtok(NULL, " \r\n"))
            argument[count++] = word;
        const DWORD start = GetTickCount();
        const int result = obey(argument[0], argument + 1, text);
        const DWORD tookMs = GetTickCount() - start;
        if (text[0] == '\0')
            snprintf(text, sizeof text, "%d", result);
        printf("%s %lu\n", text, tookMs);
        fflush(stdout);
    }
    return 0;
}
