/* What the test programs of this folder share: the library at run time, and a count of checks. */
#ifndef Q7_TESTS_WINDOWS_HOST_H
#define Q7_TESTS_WINDOWS_HOST_H

#ifdef __cplusplus
extern "C" {
#endif

typedef void (*AnyFunction)(void);

/** Prints "ok NAME" or "FAILED NAME: ..." (printf form) and counts the failure. Returns passed. */
int check(const char* name, int passed, const char* detail, ...);

/** What main returns: 1 once a check has failed. */
int exitStatus(void);

/** Loads the library or ends the program. */
void* loadLibrary(const char* path);

/** The address of an export, or ends the program. */
AnyFunction exportOf(void* library, const char* name);

/** An export, typed as the public header declares it. */
#define TYPED_EXPORT(library, name) ((__typeof__(&name))exportOf(library, #name))

/** What the file holds, for the caller to free, or ends the program. */
char* contentOf(const char* path);

#ifdef __cplusplus
}
#endif

#endif
