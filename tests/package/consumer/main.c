#include <q7_impressora.h>

#include <string.h>

int main(void)
{
    return strcmp(GetVersaoDLL(), "01.01.00") == 0 && Corte(0) == Q7_ERR_NOT_OPEN ? 0 : 1;
}
