// Printing graphics stored in the printer.

#include "commands.h"
#include "export_frame.h"

using namespace q7;

int Q7_CALL ImprimeImagemMemoria(const char* chave, int escala)
{
    const char* key = textOrEmpty(chave);
    return runCommand(
        {"ImprimeImagemMemoria"}, std::tie(key, escala), [&](PrinterSession& printer) {
            const auto isPrintable = [](char c) { return c >= 0x20 && c <= 0x7E; };
            // A key of one character ends, and fails, at its terminating zero.
            if (!isPrintable(key[0]) || !isPrintable(key[1]))
                return unlogged(Q7_ERR_IMAGE_KEY);
            if (escala < 1 || escala > 2)
                return unlogged(Q7_ERR_IMAGE_SCALE);
            printer.send(CMD_NV_GRAPHICS_PRINT);
            return loggedIfSent(printer, printer.send(std::string(key, 2) + argumentByte(escala) +
                                                      argumentByte(escala)));
        });
}
