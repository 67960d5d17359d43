#include "background_work.h"

#include "library_hold.h"

#include <set>

namespace q7
{
namespace
{

/** All work under way, to be stopped before the code and the libraries that it runs go. */
class WorkUnderWay
{
public:
    ~WorkUnderWay()
    {
        while (BackgroundWork* work = any())
            work->stop();
    }

    void add(BackgroundWork* work)
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        m_work.insert(work);
    }

    void remove(BackgroundWork* work)
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        m_work.erase(work);
    }

private:
    BackgroundWork* any()
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        return m_work.empty() ? nullptr : *m_work.begin();
    }

    std::mutex m_mutex;
    std::set<BackgroundWork*> m_work;
};

WorkUnderWay workUnderWay;

} // namespace

void BackgroundWork::start(std::function<bool()> step, std::chrono::milliseconds pause)
{
    stop();
    holdLibrary();
    m_thread.reset(QThread::create([this, step = std::move(step), pause] {
        while (step() && pauseUnlessStopping(pause)) {
        }
    }));
    workUnderWay.add(this);
    m_thread->start();
}

bool BackgroundWork::pauseUnlessStopping(std::chrono::milliseconds pause)
{
    std::unique_lock<std::mutex> lock(m_mutex);
    return !m_stop.wait_for(lock, pause, [this] { return m_isStopping; });
}

void BackgroundWork::stop()
{
    if (!m_thread)
        return;
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        m_isStopping = true;
    }
    m_stop.notify_all();
    m_thread->wait();
    m_thread.reset();
    m_isStopping = false;
    workUnderWay.remove(this);
    releaseLibrary();
}

} // namespace q7
