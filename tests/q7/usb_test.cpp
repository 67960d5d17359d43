// USB printers and serial ports, which a test cannot plug in: found in a made-up tree, and why one
// cannot be opened.

#include "devices_linux.h"
#include "open_diagnosis.h"
#include "tool.h"

#include <filesystem>

using namespace q7test;
using namespace q7tool;

namespace
{

TEST(ToolDevices, AreReadFromTheSystemsTree)
{
    namespace fs = std::filesystem;
    const TemporaryFolder tree;
    const fs::path root = tree.path();
    const auto usbDevice = [&](const std::string& name, const std::string& vendor,
                               const std::string& product, const std::string& words) {
        fs::create_directories(root / "devices" / name / (name + ":1.0"));
        tree.write("devices/" + name + "/idVendor", vendor + '\n');
        tree.write("devices/" + name + "/idProduct", product + '\n');
        tree.write("devices/" + name + "/product", words + '\n');
    };
    const auto entry = [&](const std::string& name, const std::string& device) {
        fs::create_directories(root / fs::path(name).parent_path());
        fs::create_directories(root / name);
        fs::create_directory_symlink(root / "devices" / device, root / name / "device");
    };
    usbDevice("1-1", "0abc", "0012", "Vanta 80");
    usbDevice("1-2", "0403", "6001", "USB Serial");
    fs::create_directories(root / "drivers/ftdi_sio");
    fs::create_directory_symlink(root / "drivers/ftdi_sio", root / "devices/1-2/1-2:1.0/driver");
    entry("usbmisc/lp10", "1-1/1-1:1.0");
    entry("usbmisc/lp2", "1-1/1-1:1.0");
    entry("usbmisc/hiddev0", "1-2/1-2:1.0");
    entry("tty/ttyUSB0", "1-2/1-2:1.0");
    fs::create_directories(root / "tty/tty1"); // no device behind it

    const std::vector<UsbPrinter> printers = usbPrintersIn(tree.path() + "/usbmisc");
    ASSERT_EQ(2U, printers.size());
    EXPECT_EQ("/dev/usb/lp2", printers[0].path);
    EXPECT_EQ("0abc:0012 Vanta 80",
              printers[1].vendorId + ':' + printers[1].productId + ' ' + printers[1].product);
    const std::vector<SerialPort> ports = serialPortsIn(tree.path() + "/tty");
    ASSERT_EQ(1U, ports.size());
    EXPECT_EQ("ttyUSB0 USB Serial", ports[0].name + ' ' + ports[0].description);
}

TEST(ToolDevices, OfUsbAreNotOpenedForACause)
{
    const UsbPrinter other = {"0abc", "0012", "Vanta 80", ""};
    const struct {
        int result;
        std::vector<UsbPrinter> printers;
        const char* happened;
    } rows[] = {
        {-21, {}, "Nenhuma impressora USB está ligada a este computador."},
        {-21,
         {other},
         "Nenhuma das impressoras USB ligadas (0abc:0012) tem os identificadores da VANTA."},
        {-22, {other}, "A impressora USB foi encontrada, mas não pôde ser aberta."},
        {31, {}, "O sistema recusou a impressora USB com o erro 31."},
    };
    for (const auto& row : rows) {
        OpenEvidence evidence;
        evidence.result = row.result;
        evidence.usbPrinters = row.printers;
        const Failure failure = explainOpenFailure(parsePrinterAddress("VANTA@usb"), evidence);
        EXPECT_EQ(row.happened, failure.happened);
        EXPECT_EQ(Exit::NoLink, failure.exit);
        EXPECT_EQ(row.result, failure.code);
    }
}

} // namespace
