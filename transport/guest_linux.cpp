#include "guest.h"

#include "everlasting.h"

#include <csignal>
#include <dlfcn.h>
#include <mutex>
#include <new>
#include <pthread.h>
#include <set>
#include <thread>

namespace q7
{

struct OwnThread::Thread {
    std::thread thread;
    Function interrupt;
    unsigned forkCount;
};

namespace
{

struct Guest {
    std::recursive_mutex turn;
    std::mutex threadsMutex;
    std::set<OwnThread*> threads;
    unsigned forkCount = 0;
};

Guest& guest()
{
    static Everlasting<Guest> theGuest;
    static const bool isReadyForForks = [] {
        // A lock that another thread had in the parent would never come free here.
        ::pthread_atfork(nullptr, nullptr, [] {
            Guest& child = guest();
            new (&child.turn) std::recursive_mutex;
            new (&child.threadsMutex) std::mutex;
            child.threads.clear();
            ++child.forkCount;
        });
        return true;
    }();
    static_cast<void>(isReadyForForks);
    return *theGuest;
}

OwnThread* anyThread()
{
    const std::lock_guard<std::mutex> lock(guest().threadsMutex);
    return guest().threads.empty() ? nullptr : *guest().threads.begin();
}

/** The code that a thread runs must not go before it has ended. */
struct StopsAllAtTheEnd {
    StopsAllAtTheEnd() { guest(); }
    ~StopsAllAtTheEnd()
    {
        while (OwnThread* thread = anyThread())
            thread->stop();
    }
    StopsAllAtTheEnd(const StopsAllAtTheEnd&) = delete;
    StopsAllAtTheEnd& operator=(const StopsAllAtTheEnd&) = delete;
} const stopsAllAtTheEnd;

/** Threads that the calling one starts meanwhile never take a signal. */
class NoSignals
{
public:
    NoSignals()
    {
        sigset_t all;
        sigfillset(&all);
        ::pthread_sigmask(SIG_SETMASK, &all, &m_before);
    }
    ~NoSignals() { ::pthread_sigmask(SIG_SETMASK, &m_before, nullptr); }
    NoSignals(const NoSignals&) = delete;
    NoSignals& operator=(const NoSignals&) = delete;

private:
    sigset_t m_before;
};

void forget(OwnThread* thread)
{
    const std::lock_guard<std::mutex> lock(guest().threadsMutex);
    guest().threads.erase(thread);
}

} // namespace

OwnThread::OwnThread(Function work, Function interrupt)
    : m_thread(new Thread{{}, std::move(interrupt), forkCount()})
{
    const std::lock_guard<std::mutex> lock(guest().threadsMutex);
    guest().threads.insert(this);
    try {
        const NoSignals inTheThread;
        m_thread->thread = std::thread([work = std::move(work)] {
            try {
                work();
            } catch (...) {
                // No memory: the next call does what was left.
            }
        });
    } catch (...) {
        guest().threads.erase(this);
        throw;
    }
}

OwnThread::~OwnThread()
{
    stop();
}

bool OwnThread::stop()
{
    if (!m_thread)
        return true;
    if (m_thread->forkCount != forkCount()) {
        static_cast<void>(m_thread.release()); // a thread of another process
        return false;
    }
    forget(this);
    m_thread->interrupt();
    m_thread->thread.join();
    m_thread.reset();
    return true;
}

void OwnThread::leaveBehind()
{
    forget(this);
    Dl_info self = {};
    if (::dladdr(reinterpret_cast<const void*>(&forget), &self) != 0)
        ::dlopen(self.dli_fname, RTLD_LAZY | RTLD_NODELETE | RTLD_NOLOAD);
    m_thread->thread.detach();
    m_thread.reset();
}

Turn::Turn()
{
    guest().turn.lock();
}

Turn::~Turn()
{
    guest().turn.unlock();
}

unsigned forkCount()
{
    return guest().forkCount;
}

} // namespace q7
