// The log: what a line holds, when lines are written, and what stops one.

#include "log.h"

#include "temporary_folder.h"

#include <cerrno>
#include <csignal>
#include <ctime>
#include <fcntl.h>
#include <gtest/gtest.h>
#include <optional>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <unistd.h>

using namespace q7test;

namespace
{

// The disk of the test: how many bytes it still takes, and the descriptor that was written to last.
std::optional<std::size_t> roomOnDisk;
int lastDescriptor = -1;

} // namespace

// In place of the system's, for the library's calls as well.
extern "C" ssize_t write(int descriptor, const void* bytes, std::size_t length)
{
    lastDescriptor = descriptor;
    if (roomOnDisk && *roomOnDisk == 0) {
        errno = ENOSPC;
        return -1;
    }
    const ssize_t written =
        syscall(SYS_write, descriptor, bytes, std::min(length, roomOnDisk.value_or(length)));
    if (roomOnDisk && written > 0)
        *roomOnDisk -= static_cast<std::size_t>(written);
    return written;
}

namespace
{

/** What writeLog prints on standard output while it writes one line. */
std::string printedByOneLine()
{
    testing::internal::CaptureStdout();
    q7::writeLog(2, "line");
    return testing::internal::GetCapturedStdout();
}

/** Of the clock that the library reads: std::time's may lag behind it. */
std::time_t now()
{
    timespec time = {};
    clock_gettime(CLOCK_REALTIME, &time);
    return time.tv_sec;
}

constexpr char cannotOpen[] = "Erro ao abrir arquivo!\n";

TEST(Log, LinesCarryTheirKind)
{
    DataFolder data;
    q7::writeLog(1, "1B40");
    q7::writeLog(2, "Corte. PARAMETROS:3");
    q7::writeLog(3, "Biblioteca");
    q7::writeLog(0, "nada");
    q7::writeLog(7, "ação \xFF]\n[");
    q7::writeLog(2, "");
    EXPECT_EQ((std::vector<std::string>{"COMANDOSENVIADOS 1B40", "FUNCAO Corte. PARAMETROS:3",
                                        "INFO Biblioteca", "LOGINDEFINIDO nada",
                                        "LOGINDEFINIDO ação \uFFFD", "MALFORMED [", "FUNCAO "}),
              data.takeLog());
}

TEST(Log, IsOnWhileItsFileExists)
{
    DataFolder data(DataFolder::Log::Off);
    setenv("Q7_DATA_PATH", data.path().c_str(), 1); // the separator is added
    const auto expectOff = [&data] {
        q7::writeLog(2, "nada");
        EXPECT_NE(0, access((data.path() + "/log_q7.txt").c_str(), F_OK));
        EXPECT_FALSE(q7::logIsOn());
    };
    expectOff();
    data.write("log_q7.txt", "");
    q7::writeLog(2, "one");
    EXPECT_EQ(std::vector<std::string>{"FUNCAO one"}, data.takeLog());
    data.stopLog();
    expectOff();
}

TEST(Log, LinesCarryTheLocalTime)
{
    const DataFolder data;
    for (const char* zone : {"UTC0", "<-03>3", "<+13>-13"}) {
        setenv("TZ", zone, 1);
        tzset();
        data.write("log_q7.txt", "");
        const std::time_t before = now();
        q7::writeLog(2, "line");
        const std::time_t after = now();
        std::tm stamp = {};
        stamp.tm_isdst = -1;
        ASSERT_NE(nullptr,
                  strptime(data.read("log_q7.txt").c_str(), "[%d.%m.%Y-%H:%M:%S.", &stamp));
        const std::time_t written = std::mktime(&stamp);
        EXPECT_LE(before, written) << zone;
        EXPECT_GE(after, written) << zone;
    }
    unsetenv("TZ");
    tzset();
}

TEST(Log, IsLookedForOncePerOutermostCall)
{
    DataFolder data(DataFolder::Log::Off);
    {
        const q7::LogCall outermost;
        data.write("log_q7.txt", "");
        {
            const q7::LogCall inner;
            EXPECT_FALSE(q7::logIsOn());
        }
        q7::writeLog(2, "nada");
        EXPECT_FALSE(q7::logIsOn());
    }
    EXPECT_TRUE(q7::logIsOn());
    {
        const q7::LogCall outermost;
        q7::writeLog(2, "one");
        EXPECT_EQ(std::vector<std::string>{"FUNCAO one"}, data.takeLog());
        data.stopLog();
        {
            const q7::LogCall inner;
        }
        EXPECT_TRUE(q7::logIsOn());
        EXPECT_EQ("", printedByOneLine()); // taken away, not refused
    }
    EXPECT_FALSE(q7::logIsOn());
    EXPECT_EQ("", data.read("log_q7.txt"));
}

TEST(Log, TakesWholeLinesOrNone)
{
    DataFolder data;
    q7::writeLog(2, "one");
    for (const std::size_t room : {0, 1, 40}) {
        roomOnDisk = room;
        EXPECT_EQ("", printedByOneLine());
    }
    roomOnDisk.reset();
    q7::writeLog(2, "two");
    EXPECT_EQ((std::vector<std::string>{"FUNCAO one", "FUNCAO two"}), data.takeLog());
}

// Reaching the limit would end the program by SIGXFSZ.
TEST(Log, StopsBeforeTheProcessesLimitOfAFile)
{
    const DataFolder data;
    q7::writeLog(2, "one");
    const std::string before = data.read("log_q7.txt");
    rlimit old = {};
    ASSERT_EQ(0, getrlimit(RLIMIT_FSIZE, &old));
    for (const std::size_t room : {0, 10}) {
        const rlimit limit = {before.size() + room, old.rlim_max};
        ASSERT_EQ(0, setrlimit(RLIMIT_FSIZE, &limit));
        q7::writeLog(2, "two");
        ASSERT_EQ(0, setrlimit(RLIMIT_FSIZE, &old));
        EXPECT_EQ(before, data.read("log_q7.txt"));
    }
}

TEST(Log, IsNeverAStandardDescriptor)
{
    const DataFolder data;
    const int input = dup(STDIN_FILENO);
    close(STDIN_FILENO);
    q7::writeLog(2, "one");
    if (input >= 0) {
        dup2(input, STDIN_FILENO);
        close(input);
    }
    EXPECT_GT(lastDescriptor, STDERR_FILENO);
    EXPECT_NE("", data.read("log_q7.txt"));
}

TEST(Log, ThatCannotBeOpenedIsToldOnStandardOutput)
{
    const DataFolder data(DataFolder::Log::Off);
    const std::string path = data.path() + "/log_q7.txt";
    ASSERT_EQ(0, mkdir(path.c_str(), 0700));
    EXPECT_EQ(cannotOpen, printedByOneLine());
    EXPECT_EQ(cannotOpen, printedByOneLine());
    ASSERT_EQ(0, rmdir(path.c_str()));
    ASSERT_EQ(0, mkfifo(path.c_str(), 0600)); // is not waited for
    EXPECT_EQ(cannotOpen, printedByOneLine());
    const int reader = open(path.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC);
    EXPECT_EQ(cannotOpen, printedByOneLine());
    char byte = 0;
    EXPECT_EQ(0, read(reader, &byte, 1)); // nor written
    close(reader);
}

TEST(Log, DoesNotEndAProgramWhoseOutputNobodyReads)
{
    const DataFolder data(DataFolder::Log::Off);
    ASSERT_EQ(0, mkdir((data.path() + "/log_q7.txt").c_str(), 0700));
    int ends[2] = {};
    ASSERT_EQ(0, pipe2(ends, O_CLOEXEC));
    const int output = dup(STDOUT_FILENO);
    dup2(ends[1], STDOUT_FILENO);
    close(ends[0]);
    q7::writeLog(2, "line"); // tries to tell that the log cannot be opened
    dup2(output, STDOUT_FILENO);
    close(output);
    close(ends[1]);
    sigset_t pending;
    sigpending(&pending);
    EXPECT_EQ(0, sigismember(&pending, SIGPIPE));
}

} // namespace
