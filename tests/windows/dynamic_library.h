/* Loading a library at run time, on both systems. */
#ifndef Q7_TESTS_WINDOWS_DYNAMIC_LIBRARY_H
#define Q7_TESTS_WINDOWS_DYNAMIC_LIBRARY_H

#include "host.h"

/** Returns null when the library cannot be loaded. */
void* openLibrary(const char* path);

/** Returns null when the library has no such function. */
AnyFunction findFunction(void* library, const char* name);

#endif
