/* Linked with the import library instead of loading the DLL itself; checks the version resource. */
#include "host.h"
#include "q7_impressora.h"

#include <string.h>
#include <windows.h>

int main(void)
{
    check("import library", strcmp(GetVersaoDLL(), "01.01.00") == 0, "GetVersaoDLL");

    char resource[4096];
    VS_FIXEDFILEINFO* version = NULL;
    char* text = NULL;
    UINT size = 0;
    if (!check("version resource",
               GetFileVersionInfoA("Q7_Impressora.dll", 0, sizeof resource, resource), "missing"))
        return exitStatus();
    VerQueryValueA(resource, "\\", (void**)&version, &size);
    check("version numbers",
          version != NULL && version->dwFileVersionMS == MAKELONG(1, 1) &&
              version->dwFileVersionLS == 0,
          "not 1.1.0.0");
    check(
        "version text",
        VerQueryValueA(resource, "\\StringFileInfo\\041604B0\\FileVersion", (void**)&text, &size) &&
            strcmp(text, "01.01.00") == 0,
        "not 01.01.00");
    return exitStatus();
}
