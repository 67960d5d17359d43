/* Loads, uses from two threads and unloads the library, again and again:
 * cycles DLL EMPTY-DLL KIND ADDRESS NUMBER. The printer is a VANTA. What the system and the
 * compiler's runtime keep of a library that comes and goes is measured with an empty one. */
#include "host.h"
#include "process.h"
#include "q7_impressora.h"

#include <stdlib.h>
#include <string.h>
#include <windows.h>

typedef struct {
    int kind;
    const char* address;
    int number;
} Link;

static DWORD WINAPI printFromSecondThread(void* library)
{
    USE_EXPORT(library, ImpressaoTexto);
    USE_EXPORT(library, StatusImpressora);
    if (pImpressaoTexto("segunda thread\n", 0, 0, 0) < 1)
        return 0;
    return pStatusImpressora(3) == 5; /* paper present */
}

/* One life of the library. Returns what went wrong, or null. */
static const char* useOnce(const char* path, const Link* link)
{
    void* library = loadLibrary(path);
    USE_EXPORT(library, GetVersaoDLL);
    USE_EXPORT(library, AbreConexaoImpressora);
    USE_EXPORT(library, ImpressaoTexto);
    USE_EXPORT(library, FechaConexaoImpressora);

    if (strcmp(pGetVersaoDLL(), "01.01.00") != 0)
        return "GetVersaoDLL";
    if (pAbreConexaoImpressora(link->kind, "VANTA", link->address, link->number) != 0)
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

static const char* loadOnce(const char* path, const Link* link)
{
    void* library = loadLibrary(path);
    const AnyFunction function = exportOf(library, "doNothing");
    if (((int (*)(int))function)(link->kind) != link->kind)
        return "doNothing";
    return FreeLibrary(library) ? NULL : "FreeLibrary";
}

typedef const char* (*Cycle)(const char* path, const Link* link);

enum { firstCycles = 10, laterCycles = 90 };

/* Returns the handles that the later cycles left behind: what is set up at the first use is there
 * by then. */
static int handlesLeftBy(Cycle cycle, const char* path, const Link* link)
{
    const char* wrong = NULL;
    unsigned before = 0;
    for (int i = 0; i < firstCycles + laterCycles && wrong == NULL; ++i) {
        if (i == firstCycles)
            before = nextHandleValue();
        wrong = cycle(path, link);
    }
    check(path, wrong == NULL, "%s", wrong);
    return (int)(nextHandleValue() - before) / 4;
}

int main(int argc, char** argv)
{
    if (argc != 6)
        return 2;
    const Link link = {atoi(argv[3]), argv[4], atoi(argv[5])};
    const int kept = handlesLeftBy(loadOnce, argv[2], &link);
    const char* wrong = useOnce(argv[1], &link);
    const int threads = countThreads();
    check("cycles", wrong == NULL, "%s", wrong);
    const int left = handlesLeftBy(useOnce, argv[1], &link);
    check("no thread left behind", countThreads() == threads, "%d, then %d", threads,
          countThreads());
    check("no handle left behind", left <= kept + 4, "%d, %d by an empty library", left, kept);
    return exitStatus();
}
