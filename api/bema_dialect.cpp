#include "bema_dialect.h"

#include "barcode_data.h"
#include "commands.h"
#include "export_frame.h"

namespace q7
{
namespace
{

// Error correction as this dialect numbers it: fixed values for the published levels, a formula for
// any other.
qint64 correctionOf(int level)
{
    constexpr int published[] = {10, 14, 17, 20};
    return level >= 1 && level <= 4 ? published[level - 1] : static_cast<qint64>(level) + 9;
}

} // namespace

int printBemaQrCode(PrinterSession& printer, const char* data, int moduleSize, int level)
{
    printer.send(CMD_LF);
    logCall({"ImpressaoQRCodeBema"}, std::tie(data, moduleSize, level));

    const QString text = QString::fromUtf8(data);
    if (text.isEmpty())
        return Q7_ERR_QR_EMPTY;
    const auto sizeStep = 2 * static_cast<unsigned>(moduleSize) - 2;
    if (sizeStep > 10)
        return Q7_ERR_QR_SIZE;
    const qint64 correction = correctionOf(level);
    if (correction <= 9)
        return Q7_ERR_QR_LEVEL;

    // The length counts characters although the data goes out as UTF-8, and its high byte stays 0
    // as long as the text itself has at most 255.
    const int length = text.size() + 3;
    const int lengthHigh = text.size() <= 255 ? 0 : length / 256;
    printer.send(CMD_QR_BEMA);
    printer.send(argumentByte(static_cast<int>(sizeStep) + 2) +
                 argumentByte(static_cast<int>(correction)) + argumentByte(1) +
                 argumentByte(length) + argumentByte(lengthHigh));
    const int sent = printer.sendText(text.toUtf8());
    printer.send(CMD_LF);
    if (sent < 1)
        return sent;
    logReturn({"ImpressaoQRCodeBEMA"}, Q7_OK); // the name's case differs from the call's line
    return Q7_OK;
}

int printBemaBarcode(PrinterSession& printer, int type, Bytes data, int heightDots,
                     int moduleWidthDots, int hri)
{
    logCall({"ImpressaoCodigoBarrasBema"},
            std::make_tuple(type, data.data(), heightDots, moduleWidthDots, hri));
    const bool hasSelector = type == Code128 && hasSubsetSelector(data);
    const Bytes content = hasSelector ? Bytes(data.substr(2)) : data;
    printer.send(CMD_BARCODE + argumentByte(type + firstLengthPrefixedType) +
                 argumentByte(static_cast<int>(content.size())));
    return printer.sendText(content);
}

} // namespace q7
