// Surroundings in which programs come to stand: signals, forks, descriptors used up, two threads,
// disks that fail, documents of absurd size.

#include "export_fixture.h"
#include "own_resources.h"
#include "sample_receipts.h"

#include <atomic>
#include <csignal>
#include <filesystem>
#include <fstream>
#include <sys/mount.h>
#include <sys/resource.h>
#include <sys/time.h>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>

using namespace q7test;

namespace
{

/** Prints one of each kind and closes; what the printer got. */
std::string printAll(FakePrinter::Line line = FakePrinter::Line::Tcp)
{
    const FakePrinter printer({}, line);
    EXPECT_EQ(0, openOn(printer));
    for (const SampleReceipt& receipt : sampleReceipts())
        EXPECT_EQ(0, receipt.print()) << receipt.name;
    EXPECT_EQ(4, StatusImpressora(2));
    EXPECT_EQ(0, FechaConexaoImpressora());
    return printer.waitForClose();
}

TEST(Surroundings, ASignalEveryMillisecond)
{
    const std::string expected = printAll();
    struct sigaction action = {};
    action.sa_handler = [](int) {}; // and no SA_RESTART: calls of the system end early
    ASSERT_EQ(0, ::sigaction(SIGALRM, &action, nullptr));
    const itimerval eachMillisecond = {{0, 1000}, {0, 1000}};
    const itimerval never = {};
    ::setitimer(ITIMER_REAL, &eachMillisecond, nullptr);
    for (const auto line : {FakePrinter::Line::Tcp, FakePrinter::Line::Serial})
        for (int round = 0; round < 10; ++round)
            EXPECT_TRUE(sameBytes(expected, printAll(line)));
    ::setitimer(ITIMER_REAL, &never, nullptr);
}

TEST(Surroundings, DescriptorsUsedUp)
{
#ifdef __SANITIZE_ADDRESS__
    GTEST_SKIP() << "the sanitizers look at memory through descriptors of their own";
#endif
    const DataFolder data;
    const std::string expected = printAll();
    const TcpPrinter printer;
    rlimit old = {};
    ASSERT_EQ(0, ::getrlimit(RLIMIT_NOFILE, &old));
    const OwnResources before;
    int failures = 0;
    // From none to more than the library takes.
    for (rlim_t room = 0; room <= 12; ++room) {
        std::vector<int> fillers;
        const rlimit limit = {64, old.rlim_max};
        ::setrlimit(RLIMIT_NOFILE, &limit);
        for (int filler = ::dup(0); filler >= 0; filler = ::dup(0))
            fillers.push_back(filler);
        for (rlim_t i = 0; i < room && !fillers.empty(); ++i) {
            ::close(fillers.back());
            fillers.pop_back();
        }
        // The printer's end takes one, too.
        const int result = openOn(printer);
        failures += result != 0;
        if (result == 0) {
            EXPECT_EQ(1, ImpressaoTexto("x", 0, 0, 0));
        }
        FechaConexaoImpressora();
        for (const int filler : fillers)
            ::close(filler);
        ::setrlimit(RLIMIT_NOFILE, &old);
    }
    EXPECT_GT(failures, 0);
    EXPECT_LT(failures, 13);
    EXPECT_TRUE(before.comeBack());
    EXPECT_TRUE(sameBytes(expected, printAll()));
}

/** A small disk of its own under a folder; needs an administrator. */
class SmallDisk
{
public:
    explicit SmallDisk(const std::string& folder) : m_folder(folder)
    {
        m_isMounted = ::mount("none", folder.c_str(), "tmpfs", 0, "size=64k") == 0;
    }
    ~SmallDisk()
    {
        if (m_isMounted)
            ::umount2(m_folder.c_str(), MNT_DETACH);
    }
    SmallDisk(const SmallDisk&) = delete;
    SmallDisk& operator=(const SmallDisk&) = delete;

    bool isMounted() const { return m_isMounted; }
    void forbidWriting() const
    {
        ::mount("none", m_folder.c_str(), "tmpfs", MS_REMOUNT | MS_RDONLY, "size=64k");
    }

private:
    std::string m_folder;
    bool m_isMounted;
};

TEST(Surroundings, ALogOnADiskThatIsFullThenReadOnly)
{
    DataFolder data;
    const std::string expected = printAll();
    const SmallDisk disk(data.path());
    if (!disk.isMounted())
        GTEST_SKIP() << "no disk can be mounted here";
    data.write("log_q7.txt", "");
    for (int round = 0; round < 3; ++round)
        EXPECT_TRUE(sameBytes(expected, printAll()));
    const std::string log = data.read("log_q7.txt");
    EXPECT_GT(log.size(), 60'000U);
    EXPECT_EQ("]\n", log.substr(log.size() - 2)); // whole lines
    disk.forbidWriting();
    testing::internal::CaptureStdout();
    EXPECT_TRUE(sameBytes(expected, printAll()));
    EXPECT_NE("", testing::internal::GetCapturedStdout());
    EXPECT_EQ(log, data.read("log_q7.txt"));
}

TEST(Surroundings, ALogThatIsReplacedWhileInUse)
{
    const DataFolder data;
    const std::string path = data.path() + "/log_q7.txt";
    const std::string expected = printAll();
    std::atomic<bool> isOver = false;
    std::thread meddler([&] {
        for (int round = 0; !isOver; ++round) {
            std::error_code ignored;
            std::filesystem::rename(path, path + ".old", ignored);
            if (round % 2 == 0)
                std::ofstream(path) << "";
            else
                std::filesystem::copy(path + ".old", path, ignored);
        }
    });
    for (int round = 0; round < 5; ++round)
        EXPECT_TRUE(sameBytes(expected, printAll()));
    isOver = true;
    meddler.join();
}

TEST(Surroundings, ALogOver4Gigabytes)
{
    DataFolder data;
    const std::uintmax_t size = 5'000'000'000;
    std::filesystem::resize_file(data.path() + "/log_q7.txt", size); // takes no room
    printAll();
    EXPECT_GT(std::filesystem::file_size(data.path() + "/log_q7.txt"), size);
}

TEST(Surroundings, AForkBetweenCalls)
{
    const TcpPrinter printer;
    ASSERT_EQ(0, openOn(printer));
    EXPECT_EQ(1, ImpressaoTexto("x", 0, 0, 0));
    for (int round = 0; round < 20; ++round) {
        const pid_t child = ::fork();
        if (child == 0) // it prints and closes what it has inherited
            ::_exit(ImpressaoTexto("c", 0, 0, 0) == 1 ? 0 : 1);
        int status = -1;
        EXPECT_EQ(child, ::waitpid(child, &status, 0));
        EXPECT_EQ(0, status);
        EXPECT_EQ(4, StatusImpressora(2));
    }
    EXPECT_EQ(0, FechaConexaoImpressora());
}

// A till that asks for the status from a thread of its own.
TEST(Surroundings, TwoThreadsAtOnce)
{
    const std::size_t receiptBytes = printAll().size() - 3 - 6; // a model's and a status's query
    const TcpPrinter printer;
    ASSERT_EQ(0, openOn(printer));
    std::atomic<bool> isOver = false;
    std::size_t questions = 0;
    std::thread asking([&] {
        for (; !isOver; ++questions)
            EXPECT_EQ(4, StatusImpressora(2));
    });
    for (int round = 0; round < 20; ++round)
        for (const SampleReceipt& receipt : sampleReceipts())
            EXPECT_EQ(0, receipt.print()) << receipt.name;
    isOver = true;
    asking.join();
    EXPECT_EQ(0, FechaConexaoImpressora());
    EXPECT_EQ(3 + 20 * receiptBytes + 6 * questions, printer.waitForClose().size());
}

// What a call leaves is handed over behind its back while another thread begins the next one.
TEST(Surroundings, ACallerWhoseThreadChangesWithASlowPrinter)
{
    PrinterScript script;
    script.readBytesPerSecond = 20'000;
    script.slowBytes = 60'000;
    TcpPrinter printer(script);
    ASSERT_EQ(0, openOn(printer));
    std::string bytes = hex("1D 49 43");
    for (int call = 0; call < 40; ++call) {
        const std::string text(1500, static_cast<char>('a' + call % 26));
        std::thread([&] { EXPECT_EQ(1500, ImpressaoTexto(text.c_str(), 0, 0, 0)); }).join();
        bytes += hex("1B 40 1B 74 10") + text;
    }
    std::thread([] { EXPECT_EQ(0, FechaConexaoImpressora()); }).join();
    EXPECT_TRUE(sameBytes(bytes, printer.waitForClose()));
}

/** The document with another text in place of the first one of that element. */
std::string with(std::string xml, const std::string& element, const std::string& text)
{
    const std::size_t begin = xml.find('<' + element + '>') + element.size() + 2;
    return xml.replace(begin, xml.find('<', begin) - begin, text);
}

TEST(Surroundings, TimeGrowsAsTheDocumentDoes)
{
    const TcpPrinter printer;
    ASSERT_EQ(0, openOn(printer));
    const SampleReceipt& sale = sampleReceipts()[0];
    const std::size_t keyAt = sale.xml.find("Id=\"CFe") + 7;
    const auto timeOf = [&](const std::string& xml) {
        return durationOf([&] { EXPECT_EQ(0, sale.print(xml)); });
    };
    const auto keyOf = [&](std::size_t size) {
        return std::string(sale.xml).replace(keyAt, 44, std::string(size, '7'));
    };
    const auto nameOf = [&](std::size_t size) {
        return with(sale.xml, "xProd", std::string(size, 'W'));
    };
    timeOf(keyOf(1'000'000)); // what is set up at first use
    for (int attempt = 0;; ++attempt) {
        const bool isLinear = timeOf(keyOf(1'000'000)) < 12 * timeOf(keyOf(250'000)) &&
                              timeOf(nameOf(1'000'000)) < 12 * timeOf(nameOf(250'000));
        if (isLinear)
            break;
        ASSERT_LT(attempt, 4); // the machine may be busy
    }
    FechaConexaoImpressora();
}

} // namespace
