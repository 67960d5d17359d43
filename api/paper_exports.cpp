// Moving paper, opening the cash drawer, sounding the buzzer.

#include "commands.h"
#include "export_frame.h"

using namespace q7;

namespace
{

// Returns the last send's result, and what feeding no line returns for none. A printer that takes no
// more needs no more: the count may be garbage.
int feed(PrinterSession& printer, int lines)
{
    int sent = Q7_ERR_FAILED;
    for (int line = 0; line < lines; ++line)
        if ((sent = printer.send(CMD_LF)) < 1)
            break;
    return sent;
}

} // namespace

int Q7_CALL Corte(int avanco)
{
    return runSend({"Corte"}, std::tie(avanco), [&](PrinterSession& printer) {
        feed(printer, avanco);
        return printer.send(CMD_CUT_FULL);
    });
}

int Q7_CALL AvancaPapel(int linhas)
{
    return runSend({"AvancaPapel"}, std::tie(linhas),
                   [&](PrinterSession& printer) { return feed(printer, linhas); });
}

int Q7_CALL AbreGaveta(int pino, int ti, int tf)
{
    return runCommand({"AbreGaveta"}, std::tie(pino, ti, tf), [&](PrinterSession& printer) {
        if (pino < 0 || pino > 1)
            return unlogged(Q7_ERR_DRAWER_PIN);
        if (ti < 0 || ti > 255 || tf < 0 || tf > 255)
            return unlogged(Q7_ERR_DRAWER_TIME);
        printer.lastResult = printer.send(CMD_DRAWER);
        // As a zero-terminated text: a time of 0 and what follows it stay behind.
        printer.lastResult +=
            printer.sendText(argumentByte(pino + '0') + argumentByte(ti) + argumentByte(tf));
        return printer.lastResult < 1 ? unlogged(Q7_ERR_FAILED) : logged(Q7_OK);
    });
}

int Q7_CALL AbreGavetaTavlo(void)
{
    return runSend({"AbreGavetaTavlo"}, noArguments,
                   [](PrinterSession& printer) { return printer.send(CMD_DRAWER_DEFAULT); });
}

int Q7_CALL SinalSonoro(int qtd, int tempoInicio, int tempoFim)
{
    return runCommand({"SinalSonoro"}, std::tie(qtd, tempoInicio, tempoFim),
                      [&](PrinterSession& printer) {
                          constexpr unsigned longestTime = 25;
                          if (static_cast<unsigned>(qtd) >= 64)
                              return unlogged(Q7_ERR_BUZZER_COUNT);
                          // One of the two may be longer: only both together are refused.
                          if (static_cast<unsigned>(tempoInicio) > longestTime &&
                              static_cast<unsigned>(tempoFim) > longestTime)
                              return unlogged(Q7_ERR_BUZZER_TIME);
                          printer.send(CMD_BEEP);
                          return loggedIfSent(printer, printer.send(argumentByte(qtd) +
                                                                    argumentByte(tempoInicio) +
                                                                    argumentByte(tempoFim)));
                      });
}
