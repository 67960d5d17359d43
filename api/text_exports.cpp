// Printing text and setting how it looks.

#include "commands.h"
#include "export_frame.h"

using namespace q7;

namespace
{

constexpr int highestAlignment = 2;
constexpr int highestStyle = 15;
constexpr int highestSize = 119;

// In the order of the style's bits. Small font and underline share one command, so the second
// replaces the first where both are asked for.
constexpr Bytes styleCommands[] = {CMD_FONT_B_ON, CMD_UNDERLINE_ON, CMD_REVERSE_ON, CMD_BOLD_ON};

bool isWithin(int value, int highest)
{
    return static_cast<unsigned>(value) <= static_cast<unsigned>(highest);
}

// An argument of 0 ends the text that carries it: nothing follows the head.
void sendWithArgument(PrinterSession& printer, Bytes head, int argument)
{
    printer.send(head);
    printer.sendText(argumentByte(argument));
}

} // namespace

int Q7_CALL ImpressaoTexto(const char* dados, int posicao, int stilo, int tamanho)
{
    const char* text = textOrEmpty(dados);
    // The lines go to the log as Latin-1, which reads them as UTF-8: accents show as U+FFFD there.
    return runCommand({"ImpressaoTexto", LogText::Latin1}, std::tie(text, posicao, stilo, tamanho),
                      [&](PrinterSession& printer) {
                          if (!isWithin(posicao, highestAlignment))
                              return unlogged(Q7_ERR_ALIGNMENT);
                          if (!isWithin(stilo, highestStyle))
                              return unlogged(Q7_ERR_STYLE);
                          if (!isWithin(tamanho, highestSize))
                              return unlogged(Q7_ERR_SIZE);

                          if (!printer.pageMode && printer.lineSpacing == 0)
                              InicializaImpressora();
                          if (printer.lineSpacing >= 1)
                              sendWithArgument(printer, CMD_LINE_SPACING, printer.lineSpacing);
                          if (posicao != 0)
                              sendWithArgument(printer, CMD_ALIGN, posicao);
                          for (int bit = 0; bit < 4; ++bit)
                              if ((stilo & (1 << bit)) != 0)
                                  printer.send(styleCommands[bit]);
                          if (tamanho != 0)
                              sendWithArgument(printer, CMD_CHAR_SIZE, tamanho);
                          sendWithArgument(printer, CMD_CODE_TABLE, printer.model().codeTable);

                          printer.lastResult = printer.sendText(QString::fromUtf8(text).toLatin1());
                          return logged(printer.lastResult); // also when nothing was written
                      });
}

int Q7_CALL EspacamentoEntreLinhas(int espacamento)
{
    return runSetting({"EspaçamentoEntreLinhas"}, std::tie(espacamento),
                      [&](PrinterSession& printer) {
                          if (espacamento < 1 || espacamento > 255)
                              return unlogged(Q7_ERR_SIZE);
                          printer.lineSpacing = espacamento;
                          return unlogged(Q7_OK);
                      });
}

int Q7_CALL DefinePosicao(int posicao)
{
    return runCommand({"DefinePosicao"}, std::tie(posicao), [&](PrinterSession& printer) {
        // Negative positions pass and go out as their low byte: only text tests for them.
        if (posicao > highestAlignment)
            return unlogged(Q7_ERR_ALIGNMENT);
        printer.send(CMD_ALIGN);
        return loggedIfSent(printer, printer.send(argumentByte(posicao)));
    });
}

int Q7_CALL InicializaImpressora(void)
{
    return runSend({"InicializaImpressora"}, noArguments,
                   [](PrinterSession& printer) { return printer.send(CMD_INIT); });
}
