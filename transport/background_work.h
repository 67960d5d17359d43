// Work that goes on between the calls of an application.
#pragma once

#include <QThread>
#include <chrono>
#include <condition_variable>
#include <functional>
#include <memory>
#include <mutex>

namespace q7
{

/** Repeats a step on a thread of its own, with pauses, until it is done or the work is stopped. What
 *  is still at work when the library's static objects go is stopped then. */
class BackgroundWork
{
public:
    BackgroundWork() = default;
    ~BackgroundWork() { stop(); }
    BackgroundWork(const BackgroundWork&) = delete;
    BackgroundWork& operator=(const BackgroundWork&) = delete;

    /** step: returns whether there is more to do, and waits for nothing itself. */
    void start(std::function<bool()> step, std::chrono::milliseconds pause);

    /** Cuts a pause short; returns once the step under way has ended. */
    void stop();

private:
    bool pauseUnlessStopping(std::chrono::milliseconds pause);

    std::unique_ptr<QThread> m_thread;
    std::mutex m_mutex;
    std::condition_variable m_stop;
    bool m_isStopping = false;
};

} // namespace q7
