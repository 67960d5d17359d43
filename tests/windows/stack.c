/* Calls every export with zeros and checks that it pops exactly its arguments: stack DLL DEF, where
 * DEF is the linker's export list with the arguments' sizes. Visual Basic and Delphi give the stack
 * any alignment that is a multiple of four. */
#include "host.h"

#include <stdio.h>

/* Returns the bytes that the stack pointer is off after the call. */
static int stackErrorOf(AnyFunction function, int argumentBytes, int misalignment)
{
    int expected;
    int actual;
    int result;
    __asm__ volatile("movl %%esp, %%esi\n\t"
                     "andl $-16, %%esp\n\t"
                     "subl %%edx, %%esp\n\t"
                     "movl %%esp, %%edi\n"
                     "1:\n\t"
                     "testl %%ecx, %%ecx\n\t"
                     "jz 2f\n\t"
                     "pushl $0\n\t"
                     "subl $4, %%ecx\n\t"
                     "jmp 1b\n"
                     "2:\n\t"
                     "call *%%eax\n\t"
                     "movl %%esp, %%ecx\n\t"
                     "movl %%esi, %%esp"
                     : "=D"(expected), "=c"(actual), "=a"(result), "+d"(misalignment)
                     : "a"(function), "c"(argumentBytes)
                     : "esi", "memory", "cc");
    (void)result;
    return actual - expected;
}

int main(int argc, char** argv)
{
    if (argc != 3)
        return 2;
    void* library = loadLibrary(argv[1]);
    FILE* list = fopen(argv[2], "r");
    if (list == NULL)
        return 2;
    char line[200];
    while (fgets(line, sizeof line, list) != NULL) {
        char name[100];
        int argumentBytes;
        if (sscanf(line, " %99[A-Za-z0-9_]@%d", name, &argumentBytes) != 2)
            continue;
        int error = 0;
        for (int misalignment = 0; misalignment < 16; misalignment += 4)
            error |= stackErrorOf(exportOf(library, name), argumentBytes, misalignment);
        check(name, error == 0, "the stack pointer is off by %d", error);
    }
    fclose(list);
    return exitStatus();
}
