#include "log_system.h"

#include <atomic>
#include <csignal>
#include <cstdio>

namespace q7
{

LocalTime localTime()
{
    timespec now = {};
    ::clock_gettime(CLOCK_REALTIME, &now);
    // Asking for the zone anew looks at its file: done once a second.
    static std::atomic<std::time_t> zoneAskedAt{-1};
    if (zoneAskedAt.exchange(now.tv_sec, std::memory_order_relaxed) != now.tv_sec)
        ::tzset();
    LocalTime local = {};
    ::localtime_r(&now.tv_sec, &local.fields);
    local.milliseconds = static_cast<int>(now.tv_nsec / 1000000);
    return local;
}

// The signal of a pipe that nobody reads would end the program: it is held back and taken off.
void print(const char* text)
{
    sigset_t brokenPipe;
    sigset_t before;
    sigset_t pending;
    sigemptyset(&brokenPipe);
    sigaddset(&brokenPipe, SIGPIPE);
    ::pthread_sigmask(SIG_BLOCK, &brokenPipe, &before);
    ::sigpending(&pending);
    std::fputs(text, stdout);
    std::fflush(stdout);
    const timespec atOnce = {};
    if (sigismember(&pending, SIGPIPE) == 0)
        ::sigtimedwait(&brokenPipe, nullptr, &atOnce);
    ::pthread_sigmask(SIG_SETMASK, &before, nullptr);
}

} // namespace q7
