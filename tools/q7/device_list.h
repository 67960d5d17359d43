// The lists of ports, devices and models, as they are told.
#pragma once

#include "answer.h"
#include "devices.h"

namespace q7tool
{

void tellSerialPorts(const std::vector<SerialPort>& ports, Answer& answer);

/** With the lines for q7_usb.ini. */
void tellUsbPrinters(const std::vector<UsbPrinter>& printers, Answer& answer);

void tellModels(Answer& answer);

} // namespace q7tool
