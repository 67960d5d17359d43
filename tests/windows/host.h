/* What the test programs of this folder share: a count of checks, one line each. */
#ifndef Q7_TESTS_WINDOWS_HOST_H
#define Q7_TESTS_WINDOWS_HOST_H

#include <windows.h>

/** Prints "ok NAME" or "FAILED NAME: ..." (printf form) and counts the failure. Returns passed. */
int check(const char* name, int passed, const char* detail, ...);

/** What main returns: 1 once a check has failed. */
int exitStatus(void);

/** Loads the library or ends the program. */
HMODULE loadLibrary(const char* path);

/** The address of an export, or ends the program. */
FARPROC exportOf(HMODULE library, const char* name);

/** A local pointer to an export, typed as the public header declares it. */
#define USE_EXPORT(library, name)                                                                  \
    __typeof__(&name) p##name = (__typeof__(&name))(void (*)(void))exportOf(library, #name)

#endif
