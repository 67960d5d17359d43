// What is plugged in: serial ports and USB printers, a file per system.
#pragma once

#include <string>
#include <vector>

namespace q7tool
{

struct SerialPort {
    std::string name;        // as --impressora takes it: "COM3", "ttyUSB0"
    std::string description; // the driver's or the device's words; may be empty
};

struct UsbPrinter {
    std::string vendorId;  // four hexadecimal digits, lower case
    std::string productId; // likewise
    std::string product;   // what the device calls itself; may be empty
    std::string path;      // of its device
};

std::vector<SerialPort> serialPorts();
std::vector<UsbPrinter> usbPrinters();

/** A serial port's name as the system opens it. */
std::string serialDevicePath(const std::string& name);

} // namespace q7tool
