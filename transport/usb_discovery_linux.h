// The printers of the usblp driver, found through the system's device information.
#pragma once

#include "usb_discovery.h"

namespace q7
{

class UsblpPrinters
{
public:
    /** classFolder: where the system lists the driver's devices. deviceFolder: where their
     *  character devices are. */
    explicit UsblpPrinters(QString classFolder = "/sys/class/usbmisc",
                           QString deviceFolder = "/dev/usb");

    /** The printer with the lowest number whose identifiers match the model's. */
    UsbSearch find(const QString& model) const;

private:
    QString identifiersOf(const QString& printer) const;

    QString m_classFolder;
    QString m_deviceFolder;
};

} // namespace q7
