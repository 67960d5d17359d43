#include "bytes.h"
#include "recording_printer.h"

#include <gtest/gtest.h>

#include <cerrno>

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

    /** Reads until so many bytes have come, the link ends or the time is over. */
    std::string take(std::size_t count, milliseconds timeout = milliseconds(5000))
    {
        std::string taken;
        const auto deadline = Clock::now() + timeout;
        while (taken.size() < count) {
            const auto left = std::chrono::ceil<milliseconds>(deadline - Clock::now()).count();
            pollfd watched{m_fd, POLLIN, 0};
            char buffer[4096];
            if (left <= 0 || poll(&watched, 1, static_cast<int>(left)) <= 0) {
                break;
            }
            const ssize_t got = read(m_fd, buffer, std::min(sizeof buffer, count - taken.size()));
            if (got <= 0) {
                m_error = got < 0 ? errno : 0;
                m_ended = true;
                break;
            }
            taken.append(buffer, static_cast<std::size_t>(got));
        }
        return taken;
    }
    bool ended() const { return m_ended; }
    int error() const { return m_error; }

    void hangUp()
    {
        if (m_fd >= 0) {
            close(m_fd);
            m_fd = -1;
        }
    }

private:
    int m_fd;
    bool m_ended = false;
    int m_error = 0;
};

struct Query {
    const char* name;
    const char* model;
    const char* state; // nullptr for none
    std::string query;
    std::string answer;
};
void PrintTo(const Query& row, std::ostream* out)
{
    *out << row.name;
}

class Answers : public testing::TestWithParam<Query>
{
};

ServerSettings behaving(const Behaviour& behaviour)
{
    ServerSettings settings;
    settings.behaviour = behaviour;
    return settings;
}

const std::string nameQuery = bytes("1D 49 43");
const std::string nameAnswer = bytes("'_VANTA' 00");

} // namespace

TEST_P(Answers, TellModelAndState)
{
    ServerSettings settings;
    settings.model = *findModel(GetParam().model);
    if (GetParam().state != nullptr) {
        ASSERT_TRUE(settings.state.set(GetParam().state));
    }
    const RecordingPrinter printer(settings);
    Link link(Link::toTcp(printer.port()));
    link.put(GetParam().query);
    EXPECT_EQ(link.take(GetParam().answer.size()), GetParam().answer);
}

INSTANTIATE_TEST_SUITE_P(
    Queries, Answers,
    testing::Values(
        Query{"Name", "ranzapro", nullptr, nameQuery, bytes("'_RANZAPRO' 00")},
        Query{"TildeName", "TESMO", nullptr, "~HI", bytes("02 'TESMO,V1.00,8,8192KB' 03 0D 0A")},
        Query{"Firmware", "VANTA", nullptr, bytes("1D 49 41"), bytes("'_1.00' 00")},
        Query{"DrawerClosed", "VANTA", nullptr, bytes("1D 61 00 10 04 01"), bytes("16")},
        Query{"DrawerOpen", "VANTA", "drawer-open", bytes("10 04 01"), bytes("12")},
        Query{"CoverClosed", "VANTA", nullptr, bytes("10 04 02"), bytes("12")},
        Query{"CoverOpen", "VANTA", "cover-open", bytes("10 04 02"), bytes("16")},
        Query{"Paper", "VANTA", nullptr, bytes("10 04 04"), bytes("12")},
        Query{"PaperNearEnd", "VANTA", "near-end", bytes("10 04 04"), bytes("1E")},
        Query{"PaperOut", "VANTA", "paper-out", bytes("10 04 04"), bytes("7E")},
        Query{"SensorQuiet", "VANTA", nullptr, bytes("10 04 14"), bytes("12 12 12")},
        Query{"SensorSignalled", "VANTA", "sensor", bytes("10 04 14"), bytes("12 12 32")}),
    [](const auto& row) { return row.param.name; });

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
    Behaviour behaviour;
    behaviour.silent = true;
    behaviour.promptReplies = 1;
    const RecordingPrinter printer(behaving(behaviour));
    Link link(Link::toTcp(printer.port()));
    link.put(nameQuery + nameQuery);
    EXPECT_EQ(link.take(100, milliseconds(200)), nameAnswer);
}

TEST(Misbehaviour, LateAndByteByByte)
{
    Behaviour behaviour;
    behaviour.lateMs = 60;
    behaviour.byteGapMs = 10;
    const RecordingPrinter printer(behaving(behaviour));
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
    Behaviour behaviour;
    behaviour.unaskedStatusMs = 5;
    const RecordingPrinter printer(behaving(behaviour));
    Link link(Link::toTcp(printer.port()));
    EXPECT_EQ(link.take(8), bytes("14 00 00 00 14 00 00 00"));
}

TEST(Misbehaviour, SlowReaderHoldsTheSenderBack)
{
    Behaviour behaviour;
    behaviour.readBytesPerSecond = 100'000;
    const RecordingPrinter printer(behaving(behaviour));
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
        Behaviour behaviour;
        behaviour.exit = how;
        behaviour.exitAfterBytes = 5;
        RecordingPrinter printer(behaving(behaviour));
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
