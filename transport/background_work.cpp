#include "background_work.h"

#include "library_hold.h"
#include "signal_block.h"

#include <QCoreApplication>
#include <QThread>
#include <condition_variable>
#include <mutex>
#include <set>

namespace q7
{

struct BackgroundWork::Thread {
    void run(const Step& step);
    void stop();

    std::unique_ptr<QThread> thread;
    qint64 process = QCoreApplication::applicationPid();
    std::mutex mutex;
    std::condition_variable stopping;
    bool isStopping = false;
};

namespace
{

/** All work under way, to be stopped before the code and the libraries that it runs go. */
struct WorkUnderWay {
    std::mutex mutex;
    std::set<BackgroundWork*> work;
};

// Never destroyed: a link may end, in a destructor of the program's, after all static objects.
WorkUnderWay& workUnderWay()
{
    static auto& all = *new WorkUnderWay;
    return all;
}

BackgroundWork* anyWorkUnderWay()
{
    const std::lock_guard<std::mutex> lock(workUnderWay().mutex);
    return workUnderWay().work.empty() ? nullptr : *workUnderWay().work.begin();
}

void forget(BackgroundWork* work)
{
    const std::lock_guard<std::mutex> lock(workUnderWay().mutex);
    workUnderWay().work.erase(work);
}

struct StopsAllAtTheEnd {
    ~StopsAllAtTheEnd()
    {
        while (BackgroundWork* work = anyWorkUnderWay())
            work->stop();
    }
} const stopsAllAtTheEnd;

} // namespace

BackgroundWork::BackgroundWork() = default;

BackgroundWork::~BackgroundWork()
{
    stop();
}

void BackgroundWork::start(Step step)
{
    stop();
    holdLibrary();
    m_thread = std::make_unique<Thread>();
    m_thread->thread.reset(
        QThread::create([state = m_thread.get(), step = std::move(step)] { state->run(step); }));
    {
        const std::lock_guard<std::mutex> lock(workUnderWay().mutex);
        workUnderWay().work.insert(this);
    }
    // The host's signals are for its own threads.
    const SignalBlock everySignal(SignalBlock::Every);
    m_thread->thread->start();
}

void BackgroundWork::stop()
{
    if (!m_thread)
        return;
    forget(this);
    const bool isForked = m_thread->process != QCoreApplication::applicationPid();
    if (isForked || processIsEnding()) {
        // The thread is gone, wherever it stood: it may hold its locks for ever.
        static_cast<void>(m_thread.release());
        return;
    }
    m_thread->stop();
    m_thread.reset();
    releaseLibrary();
}

void BackgroundWork::Thread::run(const Step& step)
try {
    while (const auto pause = step()) {
        std::unique_lock<std::mutex> lock(mutex);
        if (stopping.wait_for(lock, *pause, [this] { return isStopping; }))
            return;
    }
} catch (...) {
    // No memory: the next call hands over itself.
}

void BackgroundWork::Thread::stop()
{
    {
        const std::lock_guard<std::mutex> lock(mutex);
        isStopping = true;
    }
    stopping.notify_all();
    thread->wait();
}

} // namespace q7
