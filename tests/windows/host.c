#include "host.h"

#include <stdarg.h>
#include <stdio.h>
#include <stdlib.h>

#ifdef _WIN32
#include <windows.h>
static void* openLibrary(const char* path)
{
    return (void*)LoadLibraryA(path);
}
static AnyFunction findFunction(void* library, const char* name)
{
    return (AnyFunction)GetProcAddress((HMODULE)library, name);
}
#else
#include <dlfcn.h>
static void* openLibrary(const char* path)
{
    return dlopen(path, RTLD_NOW);
}
static AnyFunction findFunction(void* library, const char* name)
{
    /* C has no cast for this; POSIX promises that the bytes are the same. */
    AnyFunction function = NULL;
    *(void**)&function = dlsym(library, name);
    return function;
}
#endif

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

char* contentOf(const char* path)
{
    FILE* file = fopen(path, "rb");
    if (file == NULL) {
        fprintf(stderr, "%s cannot be read\n", path);
        exit(1);
    }
    fseek(file, 0, SEEK_END);
    const long size = ftell(file);
    rewind(file);
    char* content = malloc((size_t)size + 1);
    content[fread(content, 1, (size_t)size, file)] = '\0';
    fclose(file);
    return content;
}
