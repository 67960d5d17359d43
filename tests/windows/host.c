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
