// What Qt and the compiler's runtime keep of a thread that neither of them started. The one file
// that reads Qt's private headers: Qt offers no other way to take that back.
#include "foreign_thread.h"

#include <QtGlobal>

#ifdef QT_STATIC
#include <private/qcoreapplication_p.h>
#include <private/qthread_p.h>

#include <windows.h>
#endif

#if defined(QT_STATIC) && defined(__MINGW32__)
extern "C" const IMAGE_TLS_DIRECTORY _tls_used; // where the linker puts the thread callbacks
#endif

namespace q7
{

#ifdef QT_STATIC

namespace
{

// Qt takes the first thread that it meets for the main one, whose end it does not wait for with a
// watching thread. Here every thread is the first.
void forgetMainThread()
{
    QCoreApplicationPrivate::theMainThread.storeRelease(nullptr);
}

// Tells the runtime what the system would tell it if the calling thread ended: MinGW's threads keep
// two handles for each thread that they meet, and nobody closes those of a thread that outlives the
// library.
void endThreadInRuntime()
{
#ifdef __MINGW32__
    const auto* callback =
        reinterpret_cast<const PIMAGE_TLS_CALLBACK*>(_tls_used.AddressOfCallBacks);
    for (; *callback != nullptr; ++callback)
        (*callback)(nullptr, DLL_THREAD_DETACH, nullptr);
#endif
}

#ifdef __MINGW32__
/** The first object made and the last destroyed: destructors before it meet the unloading thread
 *  once more. */
struct LastOfAll {
    LastOfAll() = default;
    ~LastOfAll() { endThreadInRuntime(); }
    LastOfAll(const LastOfAll&) = delete;
    LastOfAll& operator=(const LastOfAll&) = delete;
};
__attribute__((init_priority(101))) const LastOfAll lastOfAll;
#endif

} // namespace

ForeignThread::ForeignThread()
{
    if (QThreadData::current(false) != nullptr)
        return;
    m_isOutermost = true;
    forgetMainThread();
    QThreadData::current();
}

ForeignThread::~ForeignThread()
{
    if (!m_isOutermost)
        return;
    QThreadData* data = QThreadData::current(false);
    QThreadPrivate::finish(data->thread.loadAcquire());
    forgetMainThread(); // whose object would outlive its data
    data->deref();
    QThreadData::clearCurrentThreadData();
    endThreadInRuntime();
}

#else

// Qt is a library of its own, which may be the host's too: its threads are not ours to end.
ForeignThread::ForeignThread() : m_isOutermost(false) {}
ForeignThread::~ForeignThread() = default;

#endif

} // namespace q7
