// USB printers: a made-up tree of devices, whose device files lead to pseudo-terminals.

#include "escrever_ler.h"
#include "printer_connection.h"
#include "printer_models.h"
#include "q7_impressora.h"
#include "usb_discovery_linux.h"

#include "bytes.h"
#include "fake_printer.h"
#include "temporary_folder.h"

#include <atomic>
#include <cerrno>
#include <fcntl.h>
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <termios.h>
#include <thread>
#include <unistd.h>

using namespace q7;
using namespace q7test;
namespace fs = std::filesystem;

namespace
{

class Usb : public testing::Test
{
protected:
    Usb() { fs::create_directories(classFolder), fs::create_directories(deviceFolder); }

    /** Adds the printer lp<number> as Linux shows those of its usblp driver. target: what its
     *  character device leads to; empty for none. */
    void addDevice(int number, const std::string& vendor, const std::string& product,
                   const std::string& target = {})
    {
        const std::string name = "lp" + std::to_string(number);
        const std::string device = tree.path() + "/1-" + std::to_string(number);
        const std::string entry = device + "/1-1:1.0/usbmisc/" + name;
        fs::create_directories(entry);
        std::ofstream(device + "/idVendor") << vendor << '\n';
        std::ofstream(device + "/idProduct") << product << '\n';
        fs::create_directory_symlink("../../../1-1:1.0", entry + "/device");
        fs::create_directory_symlink(entry, classFolder + '/' + name);
        if (!target.empty())
            fs::create_symlink(target, deviceOf(number));
    }

    void add(int number, const char* model, const std::string& target = {})
    {
        const std::string text = makeUsbIdText(model).toStdString(); // VID_1A01&PID_0001
        addDevice(number, text.substr(4, 4), text.substr(13), target);
    }

    UsbSearch find(const char* model) const
    {
        return UsblpPrinters(classFolder, deviceFolder).find(model);
    }

    std::string deviceOf(int number) const { return deviceFolder + "/lp" + std::to_string(number); }

    int open(const char* model)
    {
        connection.setKind(UsbConnection);
        return connection.open("", model, 0);
    }

    DataFolder data;
    TemporaryFolder tree;
    const std::string classFolder = tree.path() + "/class";
    const std::string deviceFolder = tree.path() + "/dev";
    PrinterConnection connection{[this](const QString& model) { return find(model.toUtf8()); }};
};

TEST_F(Usb, TheLowestNumberWins)
{
    add(10, "VANTA");
    add(9, "VANTA");
    add(0, "VESPA");
    addDevice(1, "1a01", ""); // no product
    fs::create_directory(classFolder + "/lpx");
    EXPECT_EQ(0, find("VANTA").result);
    EXPECT_EQ(deviceOf(9), find("VANTA").path.toStdString());
    EXPECT_EQ(deviceOf(0), find("VESPA").path.toStdString());
    for (const char* model : {"SORBE", "vanta", "XPTO", ""})
        EXPECT_EQ(-21, find(model).result) << model;
    EXPECT_EQ(-21, UsblpPrinters("/no such folder", "/dev").find("VANTA").result);
}

TEST_F(Usb, IdentifiersAreComparedInCapitals)
{
    addDevice(3, "1A04", "0001");
    addDevice(4, "1a05", "0001");
    EXPECT_EQ(0, find("PINTA").result);
    EXPECT_EQ(0, find("DUNEL").result);
    add(5, "RANZA");
    EXPECT_EQ(deviceOf(5), find("ORLA-K").path.toStdString());
}

TEST_F(Usb, PrintsReadsAndCloses)
{
    PrinterScript script;
    script.byteGapMs = 2;
    PtyPrinter printer(script);
    add(0, "VANTA", printer.serialPath());
    ASSERT_EQ(0, open("VANTA")); // asks nothing
    EXPECT_TRUE(connection.isOpen());
    EXPECT_EQ(3, connection.send("abc"));
    EXPECT_EQ(3, connection.send(hex("1D 49 43")));
    EscreverLer reader(connection);
    const EscreverLer::Reply reply =
        reader.readReply(std::chrono::milliseconds(1500), endsWithZero);
    EXPECT_EQ(0, reply.status);
    EXPECT_EQ("_VANTA" + std::string(1, '\0'), reply.data);
    EXPECT_EQ(-81, reader.readReply(std::chrono::milliseconds(100), isOneByte).status);
    EXPECT_EQ(0, connection.close());
    EXPECT_FALSE(connection.isOpen());
    EXPECT_EQ(-4, connection.close());
    EXPECT_EQ(-4, connection.send("abc"));
    EXPECT_TRUE(sameBytes("abc" + hex("1D 49 43"), printer.waitForClose()));
    EXPECT_EQ((std::vector<std::string>{"COMANDOSENVIADOS 616263", "COMANDOSENVIADOS 1D4943",
                                        "COMANDOSENVIADOS 616263"}),
              data.takeLog());
}

TEST_F(Usb, DeviceThatCannotBeOpenedIsLogged)
{
    add(0, "VANTA");
    EXPECT_EQ(-22, open("VANTA"));
    EXPECT_EQ(std::vector<std::string>{"INFO ERRO DE ABERTURA DE PORTA:2"},
              data.takeLog()); // ENOENT
    EXPECT_EQ(-21, open("VESPA"));
    EXPECT_FALSE(connection.isOpen());
}

TEST_F(Usb, AVanishedDeviceGivesTheSystemsError)
{
    auto printer = std::make_unique<PtyPrinter>();
    add(0, "VANTA", printer->serialPath());
    ASSERT_EQ(0, open("VANTA"));
    printer.reset();
    for (int send = 0; send < 3; ++send)
        EXPECT_EQ(5, connection.send("abc")); // EIO, positive: it can be taken for a count
    EscreverLer reader(connection);
    EXPECT_EQ(-81, reader.readReply(std::chrono::milliseconds(50), isOneByte).status);
    EXPECT_TRUE(connection.isOpen()); // until the application closes it
    EXPECT_EQ(0, connection.close());
    // Nothing is left that could be said not to have been delivered.
    EXPECT_EQ(std::vector<std::string>(3, "COMANDOSENVIADOS 616263"), data.takeLog());
}

TEST_F(Usb, ACloseThatFailsGivesTheSystemsError)
{
    const PtyPrinter printer;
    add(0, "VANTA", printer.serialPath());
    ASSERT_EQ(0, open("VANTA"));
    std::error_code ignored;
    for (const auto& entry : fs::directory_iterator("/proc/self/fd"))
        if (fs::read_symlink(entry, ignored) == printer.serialPath()) {
            const int descriptor = std::stoi(entry.path().filename());
            EXPECT_EQ(FD_CLOEXEC, ::fcntl(descriptor, F_GETFD)); // no child's
            ::close(descriptor);
        }
    EXPECT_EQ(EBADF, connection.close());
    EXPECT_FALSE(connection.isOpen());
}

/** Opens the printer end of a pseudo-terminal whose other end is a USB printer. */
int openPrinterEnd()
{
    const int printer = ::posix_openpt(O_RDWR | O_NOCTTY | O_NONBLOCK);
    EXPECT_EQ(0, ::grantpt(printer) + ::unlockpt(printer));
    termios raw = {};
    ::cfmakeraw(&raw);
    ::tcsetattr(printer, TCSANOW, &raw);
    return printer;
}

TEST_F(Usb, ACloseWaitsForWhatTheDriverHolds)
{
    const int printer = openPrinterEnd();
    add(0, "VANTA", ::ptsname(printer));
    ASSERT_EQ(0, open("VANTA"));
    while (connection.send(std::string(64, 'x')) > 0)
        ; // what the system takes
    std::atomic<bool> isReading = false;
    std::thread reader([&] {
        std::this_thread::sleep_for(std::chrono::milliseconds(200)); // a slow printer
        isReading = true;
        for (char buffer[4096]; ::read(printer, buffer, sizeof buffer) > 0;)
            ;
    });
    EXPECT_EQ(0, connection.close());
    EXPECT_TRUE(isReading);
    reader.join();
    ::close(printer);
}

TEST_F(Usb, APrinterThatStopsReadingIsWaitedForOnceUntilItMoves)
{
    const int printer = openPrinterEnd();
    add(0, "VANTA", ::ptsname(printer));
    ASSERT_EQ(0, open("VANTA"));
    // What the system takes: the last of these sends in part, whose rest goes on later.
    std::string expected;
    for (int sent = 64; sent > 0; expected += sent > 0 ? std::string(61, 'x') : std::string())
        sent = connection.send(std::string(61, 'x'));
    const Clock::time_point start = Clock::now();
    for (int line = 0; line < 600; ++line)
        EXPECT_EQ(-44, connection.send("abc\n"));
    EXPECT_LT(Clock::now() - start, std::chrono::seconds(4));

    const std::string more(100000, 'y'); // than the system takes at once
    expected += more;
    std::string received;
    const auto readOn = [&] {
        char buffer[4096];
        for (ssize_t count = 0; (count = ::read(printer, buffer, sizeof buffer)) > 0;)
            received.append(buffer, static_cast<std::size_t>(count));
    };
    readOn(); // it moves again
    std::thread reader([&] {
        for (const auto end = Clock::now() + generousTime;
             received.size() < expected.size() && Clock::now() < end;) {
            std::this_thread::sleep_for(std::chrono::milliseconds(20));
            readOn();
        }
    });
    EXPECT_EQ(static_cast<int>(more.size()), connection.send(more));
    EXPECT_EQ(0, connection.close());
    reader.join();
    EXPECT_EQ(expected, received);
    ::close(printer);
}

} // namespace
