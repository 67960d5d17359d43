#include "dynamic_library.h"

#include <dlfcn.h>
#include <stddef.h>

void* openLibrary(const char* path)
{
    return dlopen(path, RTLD_NOW);
}

AnyFunction findFunction(void* library, const char* name)
{
    /* C has no cast for this; POSIX promises that the bytes are the same. */
    AnyFunction function = NULL;
    *(void**)&function = dlsym(library, name);
    return function;
}
