#include "dynamic_library.h"

#include <windows.h>

void* openLibrary(const char* path)
{
    return (void*)LoadLibraryA(path);
}

AnyFunction findFunction(void* library, const char* name)
{
    return (AnyFunction)GetProcAddress((HMODULE)library, name);
}
