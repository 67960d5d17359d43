#include "bytes.h"
#include "recording_printer.h"

#include <gtest/gtest.h>

#include <cerrno>
#include <utility>

#include <arpa/inet.h>
#include <fcntl.h>
#include <netinet/in.h>
#include <poll.h>
#include <sys/socket.h>
#include <unistd.h>

using namespace virtual_printer;
using std::chrono::milliseconds;
using Clock = std::chrono::steady_clock;

namespace
{

/** The application's end of a link. */
class Link
{
public:
    explicit Link(int descriptor) : m_fd(descriptor) {}
    ~Link() { hangUp(); }
    Link(const Link&) = delete;
    Link& operator=(const Link&) = delete;

    static int toTcp(std::uint16_t port)
    {
        const int fd = socket(AF_INET, SOCK_STREAM, 0);
        sockaddr_in address{};
        address.sin_family = AF_INET;
        address.sin_port = htons(port);
        address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
        EXPECT_EQ(connect(fd, reinterpret_cast<sockaddr*>(&address), sizeof address), 0);
        return fd;
    }

    void put(const std::string& data) const
    {
        EXPECT_EQ(write(m_fd, data.data(), data.size()), static_cast<ssize_t>(data.size()));
    }

    /** Reads until so many bytes have come, the link ends or nothing comes for that time. */
    std::string take(std::size_t count, int timeoutMs = 5000)
    {
        std::string taken;
        ssize_t got = 1;
        char byte = 0;
        for (pollfd watched{m_fd, POLLIN, 0}; taken.size() < count &&
                                              poll(&watched, 1, timeoutMs) > 0 &&
                                              (got = read(m_fd, &byte, 1)) > 0;) {
            taken += byte;
        }
        m_ended = got <= 0;
        m_error = got < 0 ? errno : 0;
        return taken;
    }
    bool ended() const { return m_ended; }
    int error() const { return m_error; }

    void hangUp() { close(std::exchange(m_fd, -1)); }

private:
    int m_fd;
    bool m_ended = false;
    int m_error = 0;
};

struct Query {
    const char* model;
    const char* state; // nullptr for none
    std::string query;
    std::string answer;
};
const std::string nameQuery = bytes("1D 49 43");
const std::string nameAnswer = bytes("'_VANTA' 00");

} // namespace

TEST(Printer, TellsModelAndState)
{
    struct {
        const char* model;
        const char* state; // nullptr for none
        std::string query;
        std::string answer;
    } const rows[] = {{"ranzapro", nullptr, nameQuery, bytes("'_RANZAPRO' 00")},
                      {"TESMO", nullptr, "~HI", bytes("02 'TESMO,V1.00,8,8192KB' 03 0D 0A")},
                      {"VANTA", nullptr, bytes("1D 49 41"), bytes("'_1.00' 00")},
                      {"VANTA", nullptr, bytes("1D 61 00 10 04 01"), bytes("16")}, // the drawer
                      {"VANTA", "drawer-open", bytes("10 04 01"), bytes("12")},
                      {"VANTA", nullptr, bytes("10 04 02"), bytes("12")}, // the cover
                      {"VANTA", "cover-open", bytes("10 04 02"), bytes("16")},
                      {"VANTA", nullptr, bytes("10 04 04"), bytes("12")}, // the paper
                      {"VANTA", "near-end", bytes("10 04 04"), bytes("1E")},
                      {"VANTA", "paper-out", bytes("10 04 04"), bytes("7E")},
                      {"VANTA", nullptr, bytes("10 04 14"), bytes("12 12 12")},
                      {"VANTA", "sensor", bytes("10 04 14"), bytes("12 12 32")}};
    for (const auto& [model, state, query, answer] : rows) {
        SCOPED_TRACE(std::string(model) + " " + (state != nullptr ? state : "ready"));
        ServerSettings settings;
        settings.model = *findModel(model);
        EXPECT_TRUE(state == nullptr || settings.state.set(state));
        const RecordingPrinter printer(settings);
        Link link(Link::toTcp(printer.port()));
        link.put(query);
        EXPECT_EQ(link.take(answer.size()), answer);
    }
}

TEST(Printer, RecordsEachConnection)
{
    const RecordingPrinter printer;
    Link first(Link::toTcp(printer.port()));
    Link second(Link::toTcp(printer.port()));
    first.put("one\n");
    second.put("two\n");
    second.hangUp();
    EXPECT_EQ(printer.bytesOfJob(1), "two\n");
    first.hangUp();
    EXPECT_EQ(printer.bytesOfJob(0), "one\n");
    EXPECT_EQ(printer.records()[0].commands.size(), 2U);
}

TEST(Printer, ServesASerialLine)
{
    ServerSettings settings;
    settings.serial = true;
    settings.serialLink = testing::TempDir() + "q7_serial_printer_" + std::to_string(getpid());
    const RecordingPrinter printer(settings);
    for (std::size_t job = 0; job < 2; ++job) {
        Link link(open(settings.serialLink.c_str(), O_RDWR | O_NOCTTY));
        link.put(nameQuery);
        EXPECT_EQ(link.take(nameAnswer.size()), nameAnswer);
        link.put(bytes("00 03 0A 0D 11 13 7F FF")); // nothing is translated or echoed
        link.hangUp();
        EXPECT_EQ(printer.bytesOfJob(job), nameQuery + bytes("00 03 0A 0D 11 13 7F FF"));
    }
}

TEST(Misbehaviour, Silent)
{
    ServerSettings settings;
    settings.behaviour.silent = true;
    settings.behaviour.promptReplies = 1;
    const RecordingPrinter printer(settings);
    Link link(Link::toTcp(printer.port()));
    link.put(nameQuery + nameQuery);
    EXPECT_EQ(link.take(100, 200), nameAnswer);
}

TEST(Misbehaviour, LateAndByteByByte)
{
    ServerSettings settings;
    settings.behaviour.lateMs = 60;
    settings.behaviour.byteGapMs = 10;
    const RecordingPrinter printer(settings);
    Link link(Link::toTcp(printer.port()));
    const auto asked = Clock::now();
    link.put(nameQuery);
    EXPECT_EQ(link.take(1), nameAnswer.substr(0, 1));
    EXPECT_GE(Clock::now() - asked, milliseconds(60));
    EXPECT_EQ(link.take(6), nameAnswer.substr(1));
    EXPECT_GE(Clock::now() - asked, milliseconds(60 + 6 * 10));
}

TEST(Misbehaviour, UnaskedStatus)
{
    ServerSettings settings;
    settings.behaviour.unaskedStatusMs = 5;
    const RecordingPrinter printer(settings);
    Link link(Link::toTcp(printer.port()));
    EXPECT_EQ(link.take(8), bytes("14 00 00 00 14 00 00 00"));
}

TEST(Misbehaviour, SlowReaderHoldsTheSenderBack)
{
    ServerSettings settings;
    settings.behaviour.readBytesPerSecond = 100'000;
    const RecordingPrinter printer(settings);
    Link link(Link::toTcp(printer.port()));
    link.put(std::string(30'000, 'x'));
    link.hangUp();
    EXPECT_EQ(printer.bytesOfJob(0).size(), 30'000U);
    const RecordingPrinter::Record record = printer.records()[0];
    EXPECT_GE(record.lastByte - record.firstByte, milliseconds(250));
}

TEST(Misbehaviour, Vanishes)
{
    for (const Behaviour::Exit how : {Behaviour::Exit::Reset, Behaviour::Exit::Close}) {
        ServerSettings settings;
        settings.behaviour.exit = how;
        settings.behaviour.exitAfterBytes = 5;
        RecordingPrinter printer(settings);
        Link link(Link::toTcp(printer.port()));
        link.put(how == Behaviour::Exit::Reset ? "abcdefgh" : "abcde");
        EXPECT_EQ(link.take(1), "");
        EXPECT_TRUE(link.ended());
        EXPECT_EQ(link.error(), how == Behaviour::Exit::Reset ? ECONNRESET : 0);
        EXPECT_EQ(printer.bytesOfJob(0), "abcde");

        printer.setBehaviour({}); // back again
        Link later(Link::toTcp(printer.port()));
        later.put(nameQuery);
        EXPECT_EQ(later.take(nameAnswer.size()), nameAnswer);
    }
}
