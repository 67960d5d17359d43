#include "host.h"

#include <stdarg.h>
#include <stdio.h>
#include <stdlib.h>

static int failures;

int check(const char* name, int passed, const char* detail, ...)
{
    if (passed) {
        printf("ok %s\n", name);
    } else {
        va_list arguments;
        va_start(arguments, detail);
        printf("FAILED %s: ", name);
        vprintf(detail, arguments);
        printf("\n");
        va_end(arguments);
        ++failures;
    }
    fflush(stdout);
    return passed;
}

int exitStatus(void)
{
    return failures != 0;
}

HMODULE loadLibrary(const char* path)
{
    HMODULE library = LoadLibraryA(path);
    if (library == NULL) {
        check("load", 0, "%s: error %lu", path, GetLastError());
        exit(1);
    }
    return library;
}

FARPROC exportOf(HMODULE library, const char* name)
{
    FARPROC address = GetProcAddress(library, name);
    if (address == NULL) {
        check("export", 0, "%s is missing", name);
        exit(1);
    }
    return address;
}
