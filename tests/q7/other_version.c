/* A library of another version: it tells so, and lacks functions that came later. */
#include "q7_impressora.h"

char* Q7_CALL GetVersaoDLL(void)
{
    static char version[] = "00.09.00";
    return version;
}
