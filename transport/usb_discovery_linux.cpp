#include "usb_discovery_linux.h"

#include "printer_models.h"
#include "q7_impressora.h"

#include <charconv>
#include <fstream>
#include <map>
#include <string>

namespace q7
{
namespace
{

namespace fs = std::filesystem;

std::string readAttribute(const fs::path& path)
{
    std::ifstream file(path);
    std::string text;
    file >> text;
    return text;
}

/** The number of "lp<number>"; -1 for any other name. */
int printerNumber(const std::string& name)
{
    int number = -1;
    const char* end = name.data() + name.size();
    if (name.compare(0, 2, "lp") != 0 || name.size() < 3 || name[2] == '-' ||
        std::from_chars(name.data() + 2, end, number).ptr != end)
        return -1;
    return number;
}

} // namespace

UsblpPrinters::UsblpPrinters(fs::path classFolder, fs::path deviceFolder)
    : m_classFolder(std::move(classFolder)), m_deviceFolder(std::move(deviceFolder))
{
}

UsbSearch UsblpPrinters::find(const QString& model) const
{
    std::map<int, fs::path> byNumber;
    std::error_code error;
    for (fs::directory_iterator entry(m_classFolder, error);
         !error && entry != fs::directory_iterator(); entry.increment(error)) {
        const int number = printerNumber(entry->path().filename());
        if (number >= 0)
            byNumber[number] = entry->path();
    }

    const QString wanted = makeUsbIdText(model);
    for (const auto& [number, entry] : byNumber)
        if (identifiersOf(entry) == wanted)
            return {Q7_OK, QString::fromStdString(m_deviceFolder / entry.filename())};
    return {Q7_ERR_USB_ABSENT, {}};
}

// In the form of makeUsbIdText. The identifiers are the USB device's; the class entry's "device" is
// the interface below it.
QString UsblpPrinters::identifiersOf(const fs::path& entry)
{
    const fs::path usbDevice = entry / "device" / "..";
    const std::string vendor = readAttribute(usbDevice / "idVendor");
    const std::string product = readAttribute(usbDevice / "idProduct");
    if (vendor.empty() || product.empty())
        return {};
    return QString::fromStdString("VID_" + vendor + "&PID_" + product).toUpper();
}

UsbSearch findUsbPrinter(const QString& model)
{
    return UsblpPrinters().find(model);
}

} // namespace q7
