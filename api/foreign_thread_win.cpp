// The one file that reads Qt's private headers: Qt offers no other way to take back what it keeps
// of a thread that it did not start.
#include "foreign_thread.h"

#include <QtGlobal>

#ifdef QT_STATIC
#include <private/qcoreapplication_p.h>
#include <private/qthread_p.h>
#endif

namespace q7
{

#ifdef QT_STATIC

ForeignThread::ForeignThread()
{
    if (QThreadData::current(false) != nullptr)
        return;
    m_isOutermost = true;
    // The first thread that Qt meets is taken for the main one, whose end Qt does not wait for: no
    // watching thread is started. Every thread is the first.
    QCoreApplicationPrivate::theMainThread.storeRelease(nullptr);
    QThreadData::current();
}

ForeignThread::~ForeignThread()
{
    if (!m_isOutermost)
        return;
    QThreadData* data = QThreadData::current(false);
    QThreadPrivate::finish(data->thread.loadAcquire());
    // Not the main thread any more, whose object would outlive its data.
    QCoreApplicationPrivate::theMainThread.storeRelease(nullptr);
    data->deref();
    QThreadData::clearCurrentThreadData();
}

#else

// Qt is a library of its own, which may be the host's too: its threads are not ours to end.
ForeignThread::ForeignThread() : m_isOutermost(false) {}
ForeignThread::~ForeignThread() = default;

#endif

} // namespace q7
