// The lists read from the system's device information; other folders serve as well.
#pragma once

#include "devices.h"

namespace q7tool
{

/** ttyFolder: the system's /sys/class/tty. Ports without a device behind them are left out. */
std::vector<SerialPort> serialPortsIn(const std::string& ttyFolder);

/** usbmiscFolder: the system's /sys/class/usbmisc, where the usblp driver lists its printers. */
std::vector<UsbPrinter> usbPrintersIn(const std::string& usbmiscFolder);

} // namespace q7tool
