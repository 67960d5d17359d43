// Printing barcodes and QR codes.

#include "barcode_data.h"
#include "bema_dialect.h"
#include "commands.h"
#include "export_frame.h"

using namespace q7;

namespace
{

/** The character that stands for an error correction level on the wire: "0" for level 1. */
char levelCharacter(int level)
{
    return static_cast<char>(level + 47);
}

// GS ( k: module size, error correction, store, print.
Outcome printStandardQrCode(PrinterSession& printer, const QString& text, int moduleSize, int level)
{
    // Counts characters although the data goes out as UTF-8: callers that send other than ASCII
    // have printed with it so.
    const int length = text.size() + 3;
    printer.send(CMD_QR_MODULE_SIZE);
    printer.send(argumentByte(moduleSize));
    printer.send(CMD_QR_ERROR_LEVEL);
    printer.send(argumentByte(levelCharacter(level)));
    printer.send(CMD_QR_STORE + argumentByte(length) + argumentByte(length / 256) + "\x31\x50\x30");
    printer.lastResult = printer.sendText(text.toUtf8());
    printer.send(CMD_QR_PRINT);
    printer.send(CMD_LF);
    return loggedIfSent(printer, printer.lastResult);
}

// GS o and GS k 11: the data ends at a zero byte.
Outcome printAlternativeQrCode(PrinterSession& printer, Bytes data, int moduleSize, int level)
{
    constexpr char letters[] = {'L', 'M', 'Q', 'H'};
    constexpr int replacedByte = 3;
    std::string head(CMD_QR_ALT_HEAD);
    head[replacedByte] = static_cast<char>(moduleSize);
    std::string dataHead(CMD_QR_ALT_DATA);
    dataHead[replacedByte] = letters[level - 1];

    printer.send(head);
    printer.send(dataHead);
    printer.lastResult = printer.sendText(data);
    printer.send(argumentByte(0));
    AvancaPapel(1); // its count becomes the last result
    return unlogged(printer.lastResult < 1 ? Q7_ERR_FAILED : Q7_OK);
}

// A pair of digits as C's atoi reads it.
int pairValue(const std::string& pair)
{
    return std::atoi(pair.c_str()); // NOLINT(cert-err34-c): what is no number counts as 0
}

// GS k m n (function B). Data of Code 128 subset C goes out as one byte for each pair of digits.
void sendBarcode(PrinterSession& printer, int type, Bytes data)
{
    const std::string head = CMD_BARCODE + argumentByte(type + firstLengthPrefixedType);
    if (!data.startsWith("{C")) {
        printer.sendText(head + argumentByte(static_cast<int>(data.size())));
        printer.lastResult = printer.sendText(data);
        return;
    }
    // An odd number of digits sends one byte more than announced.
    printer.sendText(head + argumentByte(static_cast<int>((data.size() + 2) / 2)));
    printer.send("{");
    printer.send("C");
    for (std::size_t position = 2; position < data.size(); position += 2)
        printer.lastResult =
            printer.send(argumentByte(pairValue(std::string(data.substr(position, 2)))));
}

void sendTextPosition(PrinterSession& printer, int hri)
{
    switch (printer.model().id) {
    case DunelModel: // never prints the text, whatever was asked for
        printer.send(CMD_HRI_NONE);
        return;
    case SorbeModel: // keeps its own setting
        return;
    default:
        printer.send(CMD_BARCODE_HRI);
        printer.sendText(argumentByte(hri));
    }
}

} // namespace

int Q7_CALL ImpressaoQRCode(const char* dados, int tamanho, int nivelCorrecao)
{
    const char* data = textOrEmpty(dados);
    return runCommand(
        {"ImpressaoQRCode"}, std::tie(data, tamanho, nivelCorrecao), [&](PrinterSession& printer) {
            if (printer.model().id == SorbeModel)
                return unlogged(printBemaQrCode(printer, data, tamanho, nivelCorrecao));

            const QString text = QString::fromUtf8(data);
            if (tamanho < 1 || tamanho > 6)
                return unlogged(Q7_ERR_QR_SIZE);
            if (nivelCorrecao < 1 || nivelCorrecao > 4)
                return unlogged(Q7_ERR_QR_LEVEL);
            if (text.isEmpty())
                return unlogged(Q7_ERR_QR_EMPTY);
            if (printer.model().id == OrlaKModel)
                return printAlternativeQrCode(printer, data, tamanho, nivelCorrecao);
            return printStandardQrCode(printer, text, tamanho, nivelCorrecao);
        });
}

int Q7_CALL ImpressaoCodigoBarras(int tipo, const char* dados, int altura, int largura, int HRI)
{
    const char* text = textOrEmpty(dados);
    return runCommand({"ImpressaoCodigoBarras"}, std::tie(tipo, text, altura, largura, HRI),
                      [&](PrinterSession& printer) {
                          const bool isSorbe = printer.model().id == SorbeModel;
                          const std::string_view data = text;
                          if (tipo < UpcA || tipo > Code128)
                              return unlogged(Q7_ERR_BARCODE_TYPE);
                          if (altura < 1 || altura > 255)
                              return unlogged(Q7_ERR_BARCODE_HEIGHT);
                          if (largura < 1 || largura > 6)
                              return unlogged(Q7_ERR_BARCODE_WIDTH);
                          if (HRI < 1 || HRI > 4)
                              return unlogged(Q7_ERR_BARCODE_HRI);
                          if (!isBarcodeData(tipo, data, isSorbe))
                              return unlogged(Q7_ERR_BARCODE_DATA);

                          printer.send(CMD_BARCODE_HEIGHT);
                          printer.sendText(argumentByte(altura));
                          printer.send(CMD_BARCODE_WIDTH);
                          printer.sendText(argumentByte(largura));
                          sendTextPosition(printer, HRI);
                          if (isSorbe)
                              printer.lastResult =
                                  printBemaBarcode(printer, tipo, data, altura, largura, HRI);
                          else
                              sendBarcode(printer, tipo, data);
                          return loggedIfSent(printer, printer.lastResult);
                      });
}
