// Page mode: a page is laid out in the printer's memory and printed at once.

#include "commands.h"
#include "export_frame.h"

using namespace q7;

namespace
{

int runFixedCommand(const ExportName& name, const QByteArray& command)
{
    return runSend(name, noArguments,
                   [&](PrinterSession& printerSession) { return printerSession.send(command); });
}

} // namespace

int Q7_CALL ModoPagina(void)
{
    return runSend({"ModoPagina"}, noArguments, [](PrinterSession& printerSession) {
        const int sent = printerSession.send(CMD_PAGE_MODE);
        printerSession.pageMode = true; // for good: nothing takes it back
        return sent;
    });
}

int Q7_CALL DirecaoImpressao(int direcao)
{
    static const QByteArray directions[] = {CMD_DIRECTION_0, CMD_DIRECTION_1, CMD_DIRECTION_2,
                                            CMD_DIRECTION_3};
    return runCommand({"DirecaoImpressao"}, std::tie(direcao), [&](PrinterSession& printerSession) {
        if (direcao < 0 || direcao > 3)
            return refused(Q7_ERR_DIRECTION);
        return returnedIfSent(printerSession, printerSession.send(directions[direcao]));
    });
}

int Q7_CALL DefineAreaImpressao(int x, int y, int largura, int altura)
{
    return runSend({"DefineAreaImpressao"}, std::tie(x, y, largura, altura),
                   [&](PrinterSession& printerSession) {
                       printerSession.send(CMD_PRINT_AREA);
                       return printerSession.send(argumentWord(x) + argumentWord(y) +
                                                  argumentWord(largura) + argumentWord(altura));
                   });
}

int Q7_CALL PosicaoImpressaoHorizontal(int posicao)
{
    return runCommand(
        {"PosicaoImpressaoHorizontal"}, std::tie(posicao), [&](PrinterSession& printerSession) {
            constexpr int highestPosition = 500; // dots; there is no lowest
            if (posicao > highestPosition)
                return refused(Q7_ERR_POSITION);
            printerSession.send(CMD_HORIZONTAL_POSITION);
            return returnedIfSent(printerSession, printerSession.send(argumentWord(posicao)));
        });
}

int Q7_CALL PosicaoImpressaoVertical(int posicao)
{
    return runSend({"PosicaoImpressaoVertical"}, std::tie(posicao),
                   [&](PrinterSession& printerSession) {
                       printerSession.send(CMD_VERTICAL_POSITION);
                       return printerSession.send(argumentWord(posicao));
                   });
}

int Q7_CALL ImprimeModoPagina(void)
{
    return runFixedCommand({"ImprimeModoPagina"}, CMD_PAGE_PRINT);
}

int Q7_CALL LimpaBufferModoPagina(void)
{
    return runFixedCommand({"LimpaBufferModoPagina"}, CMD_CANCEL);
}

int Q7_CALL ImprimeMPeRetornaPadrao(void)
{
    return runFixedCommand({"ImprimeMPeRetornaPadrao"}, CMD_FORM_FEED);
}

int Q7_CALL ModoPadrao(void)
{
    return runFixedCommand({"ModoPadrao"}, CMD_STANDARD_MODE);
}
