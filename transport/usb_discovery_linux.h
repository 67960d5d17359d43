// The printers of the usblp driver, found through the system's device information.
#pragma once

#include "usb_discovery.h"

#include <filesystem>

namespace q7
{

class UsblpPrinters
{
public:
    /** classFolder: where the system lists the driver's devices. deviceFolder: where their
     *  character devices are. */
    explicit UsblpPrinters(std::filesystem::path classFolder = "/sys/class/usbmisc",
                           std::filesystem::path deviceFolder = "/dev/usb");

    /** The printer with the lowest number whose identifiers match the model's. */
    UsbSearch find(const QString& model) const;

private:
    static QString identifiersOf(const std::filesystem::path& entry);

    std::filesystem::path m_classFolder;
    std::filesystem::path m_deviceFolder;
};

} // namespace q7
