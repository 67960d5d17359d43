#include "devices_linux.h"

#include "text.h"

#include <algorithm>
#include <filesystem>
#include <fstream>

namespace q7tool
{
namespace
{

namespace fs = std::filesystem;

std::string lineOf(const fs::path& file)
{
    std::ifstream stream(file);
    std::string line;
    std::getline(stream, line);
    while (!line.empty() && line.back() == ' ')
        line.pop_back();
    return line;
}

std::vector<fs::path> entriesOf(const std::string& folder)
{
    std::vector<fs::path> entries;
    std::error_code error;
    for (fs::directory_iterator entry(folder, error); !error && entry != fs::directory_iterator();
         entry.increment(error))
        entries.push_back(entry->path());
    // "lp2" before "lp10"
    std::sort(entries.begin(), entries.end(), [](const fs::path& a, const fs::path& b) {
        const std::string left = a.filename();
        const std::string right = b.filename();
        return left.size() != right.size() ? left.size() < right.size() : left < right;
    });
    return entries;
}

/** The USB device above an interface of it, by the file that only it has. */
fs::path usbDeviceAbove(const fs::path& device)
{
    std::error_code error;
    fs::path folder = fs::canonical(device, error);
    for (int level = 0; !error && level < 4 && folder.has_parent_path(); ++level) {
        if (fs::exists(folder / "idVendor", error))
            return folder;
        folder = folder.parent_path();
    }
    return {};
}

std::string productOf(const fs::path& usbDevice)
{
    const std::string maker = lineOf(usbDevice / "manufacturer");
    const std::string product = lineOf(usbDevice / "product");
    return maker.empty() || product.empty() ? maker + product : maker + ' ' + product;
}

// The eight ports that PCs are said to have, whether they do or not, have no hardware identity.
bool hasHardware(const fs::path& tty)
{
    std::error_code error;
    const fs::path driver = fs::canonical(tty / "device" / "driver", error);
    if (error)
        return false;
    return driver.filename() != "serial8250" || lineOf(tty / "type") != "0";
}

} // namespace

std::vector<SerialPort> serialPortsIn(const std::string& ttyFolder)
{
    std::vector<SerialPort> ports;
    for (const fs::path& tty : entriesOf(ttyFolder)) {
        if (!hasHardware(tty))
            continue;
        const fs::path usb = usbDeviceAbove(tty / "device");
        ports.push_back({tty.filename(), usb.empty() ? std::string() : productOf(usb)});
    }
    return ports;
}

std::vector<UsbPrinter> usbPrintersIn(const std::string& usbmiscFolder)
{
    std::vector<UsbPrinter> printers;
    for (const fs::path& entry : entriesOf(usbmiscFolder)) {
        const std::string name = entry.filename();
        const fs::path usb = usbDeviceAbove(entry / "device");
        if (!startsWith(name, "lp") || usb.empty())
            continue;
        printers.push_back({lineOf(usb / "idVendor"), lineOf(usb / "idProduct"), productOf(usb),
                            "/dev/usb/" + name});
    }
    return printers;
}

std::vector<SerialPort> serialPorts()
{
    return serialPortsIn("/sys/class/tty");
}

std::vector<UsbPrinter> usbPrinters()
{
    return usbPrintersIn("/sys/class/usbmisc");
}

std::string serialDevicePath(const std::string& name)
{
    return startsWith(name, "/") ? name : "/dev/" + name;
}

} // namespace q7tool
