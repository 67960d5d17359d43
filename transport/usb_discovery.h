// Finding the USB printer of a model among those that are present.
#pragma once

#include <QString>

namespace q7
{

struct UsbSearch {
    int result;   // 0, Q7_ERR_USB_ABSENT, or a positive system error number
    QString path; // the device's path when result is 0
};

/** The first present USB printer that carries the model's identifiers. model: name in capitals. */
UsbSearch findUsbPrinter(const QString& model);

} // namespace q7
