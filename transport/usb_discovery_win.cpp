#include "usb_discovery.h"

#include "printer_models.h"
#include "q7_impressora.h"

#include <initguid.h>
#include <windows.h>

#include <setupapi.h>

#include <algorithm>
#include <array>
#include <cstddef>
#include <vector>

namespace q7
{
namespace
{

// The interface class of USB printers.
DEFINE_GUID(usbPrinterClass, 0x28D78FAD, 0x5A12, 0x11D1, 0xAE, 0x5B, 0x00, 0x00, 0xF8, 0x03, 0xA8,
            0xC2);

constexpr std::size_t hardwareIdBytes = 8192;
constexpr DWORD leastDetailBytes = 1024;

/** The present devices that offer the interface. Destroying it changes the thread's last error, so
 *  errors are taken before. */
class PresentPrinters
{
public:
    PresentPrinters()
        : m_set(::SetupDiGetClassDevsW(&usbPrinterClass, nullptr, nullptr,
                                       DIGCF_PRESENT | DIGCF_DEVICEINTERFACE))
    {
    }
    ~PresentPrinters() { ::SetupDiDestroyDeviceInfoList(m_set); }
    PresentPrinters(const PresentPrinters&) = delete;
    PresentPrinters& operator=(const PresentPrinters&) = delete;

    HDEVINFO set() const { return m_set; }

private:
    HDEVINFO m_set;
};

int lastError()
{
    return static_cast<int>(::GetLastError());
}

/** The first of a device's hardware identifiers; empty when it has none. */
QString hardwareId(HDEVINFO set, SP_DEVINFO_DATA& device)
{
    // Zero-filled, with room for a zero that the registry's text may lack.
    std::array<wchar_t, hardwareIdBytes / sizeof(wchar_t) + 1> text = {};
    ::SetupDiGetDeviceRegistryPropertyW(set, &device, SPDRP_HARDWAREID, nullptr,
                                        reinterpret_cast<BYTE*>(text.data()), hardwareIdBytes,
                                        nullptr);
    return QString::fromWCharArray(text.data());
}

UsbSearch pathOf(HDEVINFO set, SP_DEVICE_INTERFACE_DATA& printer)
{
    DWORD needed = 0;
    ::SetupDiGetDeviceInterfaceDetailW(set, &printer, nullptr, 0, &needed, nullptr);
    if (::GetLastError() != ERROR_INSUFFICIENT_BUFFER)
        return {lastError(), {}};
    // The record is a fixed part with the path behind it.
    const DWORD size = std::max(needed, leastDetailBytes);
    std::vector<DWORD> memory(size / sizeof(DWORD) + 1);
    auto* detail = reinterpret_cast<SP_DEVICE_INTERFACE_DETAIL_DATA_W*>(memory.data());
    detail->cbSize = sizeof *detail;
    if (::SetupDiGetDeviceInterfaceDetailW(set, &printer, detail, size, nullptr, nullptr) == 0)
        return {lastError(), {}};
    return {Q7_OK, QString::fromWCharArray(detail->DevicePath)};
}

} // namespace

UsbSearch findUsbPrinter(const QString& model)
{
    const PresentPrinters printers;
    if (printers.set() == INVALID_HANDLE_VALUE)
        return {lastError(), {}};

    const QString wanted = makeUsbIdText(model);
    SP_DEVINFO_DATA device = {};
    device.cbSize = sizeof device;
    for (DWORD index = 0; ::SetupDiEnumDeviceInfo(printers.set(), index, &device) != 0; ++index) {
        if (!hardwareId(printers.set(), device).contains(wanted))
            continue;
        // Interfaces and devices are numbered alike in this set.
        SP_DEVICE_INTERFACE_DATA printer = {};
        printer.cbSize = sizeof printer;
        if (::SetupDiEnumDeviceInterfaces(printers.set(), nullptr, &usbPrinterClass, index,
                                          &printer) == 0)
            return {lastError(), {}};
        return pathOf(printers.set(), printer);
    }
    return {Q7_ERR_USB_ABSENT, {}};
}

} // namespace q7
