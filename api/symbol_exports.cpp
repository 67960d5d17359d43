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
Outcome printStandardQrCode(PrinterSession& printerSession, const QString& text, int moduleSize,
                            int level)
{
    // Counts characters although the data goes out as UTF-8: callers that send other than ASCII
    // have printed with it so.
    const int length = text.size() + 3;
    printerSession.send(CMD_QR_MODULE_SIZE);
    printerSession.send(argumentByte(moduleSize));
    printerSession.send(CMD_QR_ERROR_LEVEL);
    printerSession.send(argumentByte(levelCharacter(level)));
    printerSession.send(CMD_QR_STORE + argumentByte(length) + argumentByte(length / 256) +
                        QByteArrayLiteral("\x31\x50\x30"));
    printerSession.lastResult = printerSession.sendText(text.toUtf8());
    printerSession.send(CMD_QR_PRINT);
    printerSession.send(CMD_LF);
    return returnedIfSent(printerSession, printerSession.lastResult);
}

// GS o and GS k 11: the data ends at a zero byte.
Outcome printAlternativeQrCode(PrinterSession& printerSession, const QByteArray& data,
                               int moduleSize, int level)
{
    constexpr char letters[] = {'L', 'M', 'Q', 'H'};
    constexpr int replacedByte = 3;
    QByteArray head = CMD_QR_ALT_HEAD;
    head[replacedByte] = static_cast<char>(moduleSize);
    QByteArray dataHead = CMD_QR_ALT_DATA;
    dataHead[replacedByte] = letters[level - 1];

    printerSession.send(head);
    printerSession.send(dataHead);
    printerSession.lastResult = printerSession.sendText(data);
    printerSession.send(argumentByte(0));
    AvancaPapel(1); // its count becomes the last result
    return refused(printerSession.lastResult < 1 ? Q7_ERR_FAILED : Q7_OK);
}

// A pair of digits as C's atoi reads it.
int pairValue(const QByteArray& pair)
{
    return std::atoi(pair.constData()); // NOLINT(cert-err34-c): what is no number counts as 0
}

// GS k m n (function B). Data of Code 128 subset C goes out as one byte for each pair of digits.
void sendBarcode(PrinterSession& printerSession, int type, const QByteArray& data)
{
    const QByteArray head = CMD_BARCODE + argumentByte(type + firstLengthPrefixedType);
    if (!data.startsWith("{C")) {
        printerSession.sendText(head + argumentByte(data.size()));
        printerSession.lastResult = printerSession.sendText(data);
        return;
    }
    // An odd number of digits sends one byte more than announced.
    printerSession.sendText(head + argumentByte((data.size() + 2) / 2));
    printerSession.send("{");
    printerSession.send("C");
    for (int position = 2; position < data.size(); position += 2)
        printerSession.lastResult =
            printerSession.send(argumentByte(pairValue(data.mid(position, 2))));
}

void sendTextPosition(PrinterSession& printerSession, int hri)
{
    switch (printerSession.model().id) {
    case DunelModel: // never prints the text, whatever was asked for
        printerSession.send(CMD_HRI_NONE);
        return;
    case SorbeModel: // keeps its own setting
        return;
    default:
        printerSession.send(CMD_BARCODE_HRI);
        printerSession.sendText(argumentByte(hri));
    }
}

} // namespace

int Q7_CALL ImpressaoQRCode(const char* dados, int tamanho, int nivelCorrecao)
{
    const char* data = textOrEmpty(dados);
    return runCommand(
        {"ImpressaoQRCode"}, std::tie(data, tamanho, nivelCorrecao),
        [&](PrinterSession& printerSession) {
            if (printerSession.model().id == SorbeModel)
                return refused(printBemaQrCode(printerSession, data, tamanho, nivelCorrecao));

            const QString text = QString::fromUtf8(data);
            if (tamanho < 1 || tamanho > 6)
                return refused(Q7_ERR_QR_SIZE);
            if (nivelCorrecao < 1 || nivelCorrecao > 4)
                return refused(Q7_ERR_QR_LEVEL);
            if (text.isEmpty())
                return refused(Q7_ERR_QR_EMPTY);
            if (printerSession.model().id == OrlaKModel)
                return printAlternativeQrCode(printerSession, data, tamanho, nivelCorrecao);
            return printStandardQrCode(printerSession, text, tamanho, nivelCorrecao);
        });
}

int Q7_CALL ImpressaoCodigoBarras(int tipo, const char* dados, int altura, int largura, int HRI)
{
    const char* text = textOrEmpty(dados);
    return runCommand({"ImpressaoCodigoBarras"}, std::tie(tipo, text, altura, largura, HRI),
                      [&](PrinterSession& printerSession) {
                          const bool isSorbe = printerSession.model().id == SorbeModel;
                          const QByteArray data = text;
                          if (tipo < UpcA || tipo > Code128)
                              return refused(Q7_ERR_BARCODE_TYPE);
                          if (altura < 1 || altura > 255)
                              return refused(Q7_ERR_BARCODE_HEIGHT);
                          if (largura < 1 || largura > 6)
                              return refused(Q7_ERR_BARCODE_WIDTH);
                          if (HRI < 1 || HRI > 4)
                              return refused(Q7_ERR_BARCODE_HRI);
                          if (!isBarcodeData(tipo, data, isSorbe))
                              return refused(Q7_ERR_BARCODE_DATA);

                          printerSession.send(CMD_BARCODE_HEIGHT);
                          printerSession.sendText(argumentByte(altura));
                          printerSession.send(CMD_BARCODE_WIDTH);
                          printerSession.sendText(argumentByte(largura));
                          sendTextPosition(printerSession, HRI);
                          if (isSorbe)
                              printerSession.lastResult = printBemaBarcode(
                                  printerSession, tipo, data, altura, largura, HRI);
                          else
                              sendBarcode(printerSession, tipo, data);
                          return returnedIfSent(printerSession, printerSession.lastResult);
                      });
}
