#include "usb_discovery_linux.h"

#include "printer_models.h"
#include "q7_impressora.h"

#include <QDir>
#include <QFile>
#include <QRegularExpression>
#include <map>

namespace q7
{
namespace
{

QString readAttribute(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? QString::fromLatin1(file.readAll()).trimmed()
                                          : QString();
}

} // namespace

UsblpPrinters::UsblpPrinters(QString classFolder, QString deviceFolder)
    : m_classFolder(std::move(classFolder)), m_deviceFolder(std::move(deviceFolder))
{
}

UsbSearch UsblpPrinters::find(const QString& model) const
{
    static const QRegularExpression printerName("^lp([0-9]{1,9})$");
    std::map<int, QString> byNumber;
    const QStringList entries = QDir(m_classFolder).entryList(QDir::AllEntries | QDir::System);
    for (const QString& entry : entries) {
        const QRegularExpressionMatch match = printerName.match(entry);
        if (match.hasMatch())
            byNumber[match.captured(1).toInt()] = entry;
    }

    const QString wanted = makeUsbIdText(model);
    for (const auto& [number, printer] : byNumber)
        if (identifiersOf(printer) == wanted)
            return {Q7_OK, QDir(m_deviceFolder).filePath(printer)};
    return {Q7_ERR_USB_ABSENT, {}};
}

// In the form of makeUsbIdText. The identifiers are the USB device's; the class entry's "device" is
// the interface below it.
QString UsblpPrinters::identifiersOf(const QString& printer) const
{
    const QString usbDevice =
        QFileInfo(m_classFolder + '/' + printer + "/device").canonicalFilePath() + "/..";
    const QString vendor = readAttribute(usbDevice + "/idVendor");
    const QString product = readAttribute(usbDevice + "/idProduct");
    if (vendor.isEmpty() || product.isEmpty())
        return {};
    return ("VID_" + vendor + "&PID_" + product).toUpper();
}

UsbSearch findUsbPrinter(const QString& model)
{
    return UsblpPrinters().find(model);
}

} // namespace q7
