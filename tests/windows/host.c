#include "host.h"

#include "dynamic_library.h"

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

void* loadLibrary(const char* path)
{
    void* library = openLibrary(path);
    if (library == NULL && !check("load", 0, "%s", path))
        exit(1);
    return library;
}

AnyFunction exportOf(void* library, const char* name)
{
    const AnyFunction function = findFunction(library, name);
    if (function == NULL && !check("export", 0, "%s is missing", name))
        exit(1);
    return function;
}
