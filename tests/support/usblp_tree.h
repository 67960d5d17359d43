// A made-up tree of USB printers, as Linux shows those of its usblp driver.
#pragma once

#include "temporary_folder.h"

namespace q7test
{

class UsblpTree : public TemporaryFolder
{
public:
    UsblpTree();

    /** Adds the printer lp<number>. target: what its character device leads to; empty for none. */
    void add(int number, const std::string& vendor, const std::string& product,
             const std::string& target = {});

    std::string classFolder() const { return path() + "/sys/class/usbmisc"; }
    std::string deviceFolder() const { return path() + "/dev/usb"; }
};

} // namespace q7test
