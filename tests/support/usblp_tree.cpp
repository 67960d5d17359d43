#include "usblp_tree.h"

#include <filesystem>

namespace q7test
{

UsblpTree::UsblpTree()
{
    std::filesystem::create_directories(classFolder());
    std::filesystem::create_directories(deviceFolder());
}

void UsblpTree::add(int number, const std::string& vendor, const std::string& product,
                    const std::string& target)
{
    const std::string name = "lp" + std::to_string(number);
    const std::string device = "sys/devices/usb1/1-" + std::to_string(number);
    const std::string entry = device + "/1-1:1.0/usbmisc/" + name;
    std::filesystem::create_directories(path() + '/' + entry);
    write(device + "/idVendor", vendor + '\n');
    write(device + "/idProduct", product + '\n');
    std::filesystem::create_directory_symlink("../../../1-1:1.0", path() + '/' + entry + "/device");
    std::filesystem::create_directory_symlink(path() + '/' + entry, classFolder() + '/' + name);
    if (!target.empty())
        std::filesystem::create_symlink(target, deviceFolder() + '/' + name);
}

} // namespace q7test
