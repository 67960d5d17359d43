/* A program that loads the library when it needs it and unloads it again. Says nothing. */
#define _POSIX_C_SOURCE 200809L
#include <dlfcn.h>
#include <stdlib.h>

/* Asked by LeakSanitizer. What the library keeps for the process's life, its session first of all,
 * is reached through its own data; once that is unloaded, all of it would count as leaked. */
int __lsan_is_turned_off(void);
int __lsan_is_turned_off(void)
{
    return 1;
}

int main(int argc, char** argv)
{
    if (argc != 3)
        return 255;
    for (int round = 1; round <= 4; ++round) {
        void* library = dlopen(argv[1], RTLD_NOW);
        if (library == NULL)
            return 254;
        int (*open)(int, const char*, const char*, int);
        int (*print)(const char*, int, int, int);
        int (*close)(void);
        *(void**)&open = dlsym(library, "AbreConexaoImpressora");
        *(void**)&print = dlsym(library, "ImpressaoTexto");
        *(void**)&close = dlsym(library, "FechaConexaoImpressora");
        if (open(3, "VANTA", "127.0.0.1", atoi(argv[2])) != 0 || print("abc\n", 0, 0, 0) != 4)
            return round;
        /* Every second time the connection is left open. */
        if (round % 2 == 0 && close() != 0)
            return round;
        if (dlclose(library) != 0)
            return round;
    }
    return 0;
}
