#include "bytes.h"
#include "recording_printer.h"

#include <gtest/gtest.h>

#include <fcntl.h>
#include <unistd.h>

using namespace virtual_printer;
using q7test::hex;

// How the printer answers and misbehaves is what the library's tests see of it.
TEST(Printer, ServesASerialLine)
{
    ServerSettings settings;
    settings.serial = true;
    settings.serialLink = testing::TempDir() + "q7_serial_printer_" + std::to_string(getpid());
    const RecordingPrinter printer(settings);
    const std::string sent = hex("1D 49 43 00 03 0A 0D 11 13 7F FF");
    for (std::size_t job = 0; job < 2; ++job) {
        const int line = open(settings.serialLink.c_str(), O_RDWR | O_NOCTTY);
        EXPECT_EQ(write(line, sent.data(), sent.size()), static_cast<ssize_t>(sent.size()));
        close(line);
        EXPECT_EQ(printer.bytesOfJob(job), sent); // nothing is translated
    }
}
