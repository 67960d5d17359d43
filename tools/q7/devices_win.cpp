#include "devices.h"

#include "text.h"
#include "wide_text_win.h"

#include <initguid.h>
#include <windows.h>

#include <setupapi.h>

#include <algorithm>
#include <array>
#include <cwctype>

namespace q7tool
{
namespace
{

// The interface class of USB printers.
DEFINE_GUID(usbPrinterClass, 0x28D78FAD, 0x5A12, 0x11D1, 0xAE, 0x5B, 0x00, 0x00, 0xF8, 0x03, 0xA8,
            0xC2);

/** A text property of a device; of several texts the first. */
std::string propertyOf(HDEVINFO set, SP_DEVINFO_DATA& device, DWORD property)
{
    std::array<wchar_t, 2048> text = {};
    constexpr DWORD bytes = (2048 - 1) * sizeof(wchar_t);
    if (::SetupDiGetDeviceRegistryPropertyW(set, &device, property, nullptr,
                                            reinterpret_cast<BYTE*>(text.data()), bytes,
                                            nullptr) == 0)
        return {};
    return utf8Of(text.data());
}

/** The four digits behind "VID_" or "PID_" in a hardware identifier, in lower case. */
std::string digitsBehind(const std::string& hardwareId, const std::string& mark)
{
    const std::size_t at = upperCase(hardwareId).find(mark);
    std::string digits =
        at == std::string::npos ? std::string() : hardwareId.substr(at + mark.size(), 4);
    for (char& c : digits)
        c = c >= 'A' && c <= 'F' ? static_cast<char>(c - 'A' + 'a') : c;
    return digits;
}

} // namespace

std::vector<SerialPort> serialPorts()
{
    std::vector<SerialPort> ports;
    HKEY key = nullptr;
    if (::RegOpenKeyExW(HKEY_LOCAL_MACHINE, L"HARDWARE\\DEVICEMAP\\SERIALCOMM", 0, KEY_QUERY_VALUE,
                        &key) != ERROR_SUCCESS)
        return ports;
    std::array<wchar_t, 512> name = {};
    std::array<wchar_t, 512> value = {};
    for (DWORD index = 0;; ++index) {
        DWORD nameLength = static_cast<DWORD>(name.size());
        DWORD valueBytes = (512 - 1) * sizeof(wchar_t);
        DWORD type = 0;
        value.fill(L'\0');
        if (::RegEnumValueW(key, index, name.data(), &nameLength, nullptr, &type,
                            reinterpret_cast<BYTE*>(value.data()), &valueBytes) != ERROR_SUCCESS)
            break;
        if (type == REG_SZ)
            ports.push_back({utf8Of(value.data()), utf8Of(name.data())});
    }
    ::RegCloseKey(key);
    // "COM3" before "COM10"
    std::sort(ports.begin(), ports.end(), [](const SerialPort& a, const SerialPort& b) {
        return a.name.size() != b.name.size() ? a.name.size() < b.name.size() : a.name < b.name;
    });
    return ports;
}

std::vector<UsbPrinter> usbPrinters()
{
    std::vector<UsbPrinter> printers;
    HDEVINFO set = ::SetupDiGetClassDevsW(&usbPrinterClass, nullptr, nullptr,
                                          DIGCF_PRESENT | DIGCF_DEVICEINTERFACE);
    if (set == INVALID_HANDLE_VALUE)
        return printers;
    SP_DEVINFO_DATA device = {};
    device.cbSize = sizeof device;
    for (DWORD index = 0; ::SetupDiEnumDeviceInfo(set, index, &device) != 0; ++index) {
        const std::string hardwareId = propertyOf(set, device, SPDRP_HARDWAREID);
        std::string product = propertyOf(set, device, SPDRP_FRIENDLYNAME);
        if (product.empty())
            product = propertyOf(set, device, SPDRP_DEVICEDESC);
        printers.push_back({digitsBehind(hardwareId, "VID_"), digitsBehind(hardwareId, "PID_"),
                            product, hardwareId});
    }
    ::SetupDiDestroyDeviceInfoList(set);
    return printers;
}

std::string serialDevicePath(const std::string& name)
{
    return name;
}

} // namespace q7tool
