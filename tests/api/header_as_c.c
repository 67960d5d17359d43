/* The public header as a C program meets it. */

#include "q7_impressora.h"

int headerServesC(void);

/* Returns the number of answers that are not Q7_ERR_NOT_OPEN. */
int headerServesC(void)
{
    int(Q7_CALL* const closes[])(void*) = {PortClose, PrtPortClose};
    int wrong = FechaConexaoImpressora() != Q7_ERR_NOT_OPEN;
    for (int i = 0; i < 2; ++i)
        wrong += closes[i](0) != Q7_ERR_NOT_OPEN;
    return wrong;
}
