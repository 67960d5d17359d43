/* A program that ends without closing while its printer is slow: ending DLL PORT. What was
 * printed is still being handed over then, and the end must not wait for it. */
#include "host.h"
#include "q7_impressora.h"

#include <stdlib.h>
#include <string.h>
#include <windows.h>

int main(int argc, char** argv)
{
    if (argc != 3)
        return 2;
    void* library = loadLibrary(argv[1]);
    USE_EXPORT(library, AbreConexaoImpressora);
    USE_EXPORT(library, ImpressaoTexto);

    int result = pAbreConexaoImpressora(3, "VANTA", "127.0.0.1", atoi(argv[2]));
    check("open", result == 0, "%d", result);
    static char text[30001];
    memset(text, 'x', sizeof text - 1);
    for (int i = 0; i < 300 && result >= 0; ++i)
        result = pImpressaoTexto(text, 0, 0, 0);
    check("printing", result == sizeof text - 1, "%d", result);
    Sleep(500); /* so that the thread that hands over is between two tries */
    return exitStatus();
}
