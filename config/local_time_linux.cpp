#include "local_time.h"

#include <atomic>
#include <ctime>

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
    std::tm local = {};
    ::localtime_r(&now.tv_sec, &local);
    return {local.tm_year + 1900,
            local.tm_mon + 1,
            local.tm_mday,
            local.tm_hour,
            local.tm_min,
            local.tm_sec,
            static_cast<int>(now.tv_nsec / 1000000)};
}

} // namespace q7
