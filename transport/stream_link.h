// What serial and TCP links share: sends gathered by a buffered device, bounded reads.
#pragma once

#include "background_work.h"
#include "link.h"

#include <QElapsedTimer>
#include <QIODevice>

namespace q7
{

/** Over a device without thread affinity (see thread_free.h), so that any thread may call. */
class StreamLink : public Link
{
public:
    explicit StreamLink(QIODevice& device) : m_device(device) {}

    int send(const QByteArray& bytes) override;
    void handOver() override;
    void beginCall() override;
    void endCall() override;
    bool waitReadable(int timeoutMs) override;
    QByteArray readReply(QDeadlineTimer deadline, const ReplyIsWhole& isWhole) override;
    void discardInput() override;

protected:
    /** Writes what the system takes without waiting. */
    virtual void flushDevice() = 0;

    /** Bytes that the system took and that have not reached the printer yet. */
    virtual qint64 bytesInSystem() = 0;

    /** Called before each wait for a reply or more of it. */
    virtual void askForMore() {}

    /** Waits until everything was handed to the system; gives up after 5 s in which nothing reached
     *  the printer, or when the link fails. */
    void deliverAll();

    /** Stops what goes on between calls; for destructors, before the device goes. */
    void stopBackground() { m_backgroundHandOver.stop(); }

private:
    bool waitForProgress(int timeoutMs);
    QByteArray takeWaiting();

    QIODevice& m_device;
    // Set while the printer takes nothing: a receipt's hundreds of calls must not wait each.
    bool m_stalled = false;
    // Last, so that it ends before what it works on.
    BackgroundWork m_backgroundHandOver;
};

/** Progress of something that shrinks: expires when it has not shrunk for the time given. */
class StallTimer
{
public:
    StallTimer(qint64 remaining, int limitMs);

    /** Takes the present amount; returns false once it has stood still for the limit. */
    bool goesOn(qint64 remaining);

private:
    qint64 m_remaining;
    int m_limitMs;
    QElapsedTimer m_sinceProgress;
};

/** How long a printer that takes nothing is waited for when its link is closed. */
constexpr int closeStallLimitMs = 5000;

} // namespace q7
