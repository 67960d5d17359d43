/* A USB printer, model VANTA, that answers two seconds late: late_reply DLL. */
#include "host.h"
#include "q7_impressora.h"

#include <windows.h>

int main(int argc, char** argv)
{
    if (argc != 2)
        return 2;
    void* library = loadLibrary(argv[1]);
    USE_EXPORT(library, AbreConexaoImpressora);
    USE_EXPORT(library, StatusImpressora);
    USE_EXPORT(library, ImpressaoTexto);
    USE_EXPORT(library, FechaConexaoImpressora);

    int result = pAbreConexaoImpressora(1, "VANTA", "", 0);
    check("open", result == 0, "%d", result);
    const DWORD start = GetTickCount();
    result = pStatusImpressora(3);
    const DWORD tookMs = GetTickCount() - start;
    check("no reply in time", result == Q7_ERR_NO_REPLY, "%d", result);
    check("given up in time", tookMs >= 1400 && tookMs < 2000, "after %lu ms", tookMs);
    /* Half a second later the first answer comes; the read that was given up must not take it. */
    result = pStatusImpressora(3);
    check("a reply given up on swallows nothing", result == 5, "%d", result);
    result = pImpressaoTexto("depois\n", 0, 0, 0);
    check("printing goes on", result > 0, "%d", result);
    result = pFechaConexaoImpressora();
    check("close", result == 0, "%d", result);
    return exitStatus();
}
