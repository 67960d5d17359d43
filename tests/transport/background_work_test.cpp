#include "background_work.h"

#include <atomic>
#include <csignal>
#include <gtest/gtest.h>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>

namespace
{

using namespace std::chrono_literals;

/** The exit status of a child process, -1 when it does not end in ten seconds. */
int statusOf(pid_t child)
{
    const auto deadline = std::chrono::steady_clock::now() + 10s;
    int status = 0;
    while (::waitpid(child, &status, WNOHANG) == 0) {
        if (std::chrono::steady_clock::now() > deadline) {
            ::kill(child, SIGKILL);
            ::waitpid(child, &status, 0);
            return -1;
        }
        std::this_thread::sleep_for(5ms);
    }
    return WEXITSTATUS(status);
}

TEST(BackgroundWork, LeavesAForkedProcessFreeToEnd)
{
    for (const bool childStops : {false, true}) {
        SCOPED_TRACE(childStops);
        q7::BackgroundWork work;
        std::atomic<int> steps = 0;
        work.start([&steps] {
            ++steps;
            return std::optional(1ms);
        });
        const pid_t child = ::fork();
        if (child == 0) {
            if (childStops)
                work.stop();
            std::exit(7); // with the destructors of what is static
        }
        EXPECT_EQ(7, statusOf(child));

        // Here it goes on, until it is stopped.
        const int before = steps;
        while (steps < before + 3)
            std::this_thread::sleep_for(1ms);
        work.stop();
        const int after = steps;
        std::this_thread::sleep_for(20ms);
        EXPECT_EQ(after, steps);
    }
}

} // namespace
