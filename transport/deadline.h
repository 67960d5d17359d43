// Points in time until which something is waited for.
#pragma once

#include <chrono>
#include <cstddef>

namespace q7
{

using Clock = std::chrono::steady_clock;
using Deadline = Clock::time_point;

inline Deadline after(std::chrono::milliseconds time)
{
    return Clock::now() + time;
}

inline bool hasPassed(Deadline deadline)
{
    return Clock::now() >= deadline;
}

/** Progress of something that shrinks: stands still once it has not shrunk for the time given. */
class StallTimer
{
public:
    StallTimer(std::size_t remaining, std::chrono::milliseconds limit)
        : m_remaining(remaining), m_limit(limit), m_deadline(after(limit))
    {
    }

    /** Takes the present amount; returns false once it has stood still for the limit. */
    bool goesOn(std::size_t remaining)
    {
        if (remaining < m_remaining)
            m_deadline = after(m_limit);
        m_remaining = remaining;
        return !hasPassed(m_deadline);
    }

private:
    std::size_t m_remaining;
    std::chrono::milliseconds m_limit;
    Deadline m_deadline;
};

} // namespace q7
