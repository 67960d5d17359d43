// Moving paper, opening the cash drawer, sounding the buzzer.

#include "commands.h"
#include "export_frame.h"

using namespace q7;

int Q7_CALL Corte(int avanco)
{
    return runSend({"Corte"}, std::tie(avanco), [&](PrinterSession& printerSession) {
        for (int line = 0; line < avanco; ++line)
            printerSession.send(CMD_LF);
        return printerSession.send(CMD_CUT_FULL);
    });
}

int Q7_CALL AvancaPapel(int linhas)
{
    return runSend({"AvancaPapel"}, std::tie(linhas), [&](PrinterSession& printerSession) {
        int sent = Q7_ERR_FAILED; // what feeding no line returns
        for (int line = 0; line < linhas; ++line)
            sent = printerSession.send(CMD_LF);
        return sent;
    });
}

int Q7_CALL AbreGaveta(int pino, int ti, int tf)
{
    return runCommand({"AbreGaveta"}, std::tie(pino, ti, tf), [&](PrinterSession& printerSession) {
        if (pino < 0 || pino > 1)
            return refused(Q7_ERR_DRAWER_PIN);
        if (ti < 0 || ti > 255 || tf < 0 || tf > 255)
            return refused(Q7_ERR_DRAWER_TIME);
        printerSession.lastResult = printerSession.send(CMD_DRAWER);
        // As a zero-terminated text: a time of 0 and what follows it stay behind.
        printerSession.lastResult +=
            printerSession.sendText(argumentByte(pino + '0') + argumentByte(ti) + argumentByte(tf));
        return printerSession.lastResult < 1 ? refused(Q7_ERR_FAILED) : returned(Q7_OK);
    });
}

int Q7_CALL AbreGavetaTavlo(void)
{
    return runSend({"AbreGavetaTavlo"}, noArguments, [](PrinterSession& printerSession) {
        return printerSession.send(CMD_DRAWER_DEFAULT);
    });
}

int Q7_CALL SinalSonoro(int qtd, int tempoInicio, int tempoFim)
{
    return runCommand(
        {"SinalSonoro"}, std::tie(qtd, tempoInicio, tempoFim), [&](PrinterSession& printerSession) {
            constexpr unsigned longestTime = 25;
            if (static_cast<unsigned>(qtd) >= 64)
                return refused(Q7_ERR_BUZZER_COUNT);
            // One of the two may be longer: only both together are refused.
            if (static_cast<unsigned>(tempoInicio) > longestTime &&
                static_cast<unsigned>(tempoFim) > longestTime)
                return refused(Q7_ERR_BUZZER_TIME);
            printerSession.send(CMD_BEEP);
            return returnedIfSent(printerSession, printerSession.send(argumentByte(qtd) +
                                                                      argumentByte(tempoInicio) +
                                                                      argumentByte(tempoFim)));
        });
}
