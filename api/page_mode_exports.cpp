// Page mode: a page is laid out in the printer's memory and printed at once.

#include "commands.h"
#include "export_frame.h"

using namespace q7;

namespace
{

int runFixedCommand(const ExportName& name, Bytes command)
{
    return runSend(name, noArguments,
                   [&](PrinterSession& printer) { return printer.send(command); });
}

} // namespace

int Q7_CALL ModoPagina(void)
{
    return runSend({"ModoPagina"}, noArguments, [](PrinterSession& printer) {
        const int sent = printer.send(CMD_PAGE_MODE);
        printer.pageMode = true; // for good: nothing takes it back
        return sent;
    });
}

int Q7_CALL DirecaoImpressao(int direcao)
{
    static constexpr Bytes directions[] = {CMD_DIRECTION_0, CMD_DIRECTION_1, CMD_DIRECTION_2,
                                           CMD_DIRECTION_3};
    return runCommand({"DirecaoImpressao"}, std::tie(direcao), [&](PrinterSession& printer) {
        if (direcao < 0 || direcao > 3)
            return unlogged(Q7_ERR_DIRECTION);
        return loggedIfSent(printer, printer.send(directions[direcao]));
    });
}

int Q7_CALL DefineAreaImpressao(int x, int y, int largura, int altura)
{
    return runSend({"DefineAreaImpressao"}, std::tie(x, y, largura, altura),
                   [&](PrinterSession& printer) {
                       printer.send(CMD_PRINT_AREA);
                       return printer.send(argumentWord(x) + argumentWord(y) +
                                           argumentWord(largura) + argumentWord(altura));
                   });
}

int Q7_CALL PosicaoImpressaoHorizontal(int posicao)
{
    return runCommand({"PosicaoImpressaoHorizontal"}, std::tie(posicao),
                      [&](PrinterSession& printer) {
                          constexpr int highestPosition = 500; // dots; there is no lowest
                          if (posicao > highestPosition)
                              return unlogged(Q7_ERR_POSITION);
                          printer.send(CMD_HORIZONTAL_POSITION);
                          return loggedIfSent(printer, printer.send(argumentWord(posicao)));
                      });
}

int Q7_CALL PosicaoImpressaoVertical(int posicao)
{
    return runSend({"PosicaoImpressaoVertical"}, std::tie(posicao), [&](PrinterSession& printer) {
        printer.send(CMD_VERTICAL_POSITION);
        return printer.send(argumentWord(posicao));
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
