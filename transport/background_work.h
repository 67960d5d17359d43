// Work that goes on between the calls of an application.
#pragma once

#include <chrono>
#include <functional>
#include <memory>
#include <optional>

namespace q7
{

/** Repeats a step on a thread of its own, with pauses, until it is done or the work is stopped. What
 *  is still at work when the library's static objects go is stopped then. */
class BackgroundWork
{
public:
    /** Does a part and waits for nothing itself. Returns the pause until the next step, nothing when
     *  all is done. */
    using Step = std::function<std::optional<std::chrono::milliseconds>()>;

    BackgroundWork();
    ~BackgroundWork();
    BackgroundWork(const BackgroundWork&) = delete;
    BackgroundWork& operator=(const BackgroundWork&) = delete;

    void start(Step step);

    /** Cuts a pause short; returns once the step under way has ended. In a process that was forked
     *  off meanwhile, and in one whose end has taken the other threads already, there is no thread
     *  and nothing to stop. */
    void stop();

private:
    struct Thread;
    std::unique_ptr<Thread> m_thread; // null when nothing is at work
};

} // namespace q7
