#include "stream_link.h"

#include "q7_impressora.h"

#include <algorithm>

namespace q7
{
namespace
{

constexpr int handOverLimitMs = 250;
// Sends of one call leave together up to here; those of a longer call begin to leave before it ends.
constexpr int mostGathered = 65536;
// A reply from a printer that never stops talking ends here.
constexpr int replyLimit = 65536;
// An input that never dries up, from a printer that keeps sending status, ends a discard.
constexpr int discardRounds = 64;

} // namespace

int StreamLink::send(const QByteArray& bytes)
{
    if (!isOpen())
        return Q7_ERR_NOT_OPEN;
    // The count is a signed 16-bit number: callers know a wrapped count for what it is.
    const auto count = static_cast<qint16>(m_device.write(bytes));
    if (m_device.bytesToWrite() > mostGathered)
        flushDevice();
    return count <= 0 ? int{Q7_ERR_NOT_SENT} : count;
}

void StreamLink::handOver()
{
    if (!isOpen() || m_device.bytesToWrite() == 0)
        return;
    const qint64 accepted = m_device.bytesToWrite();
    flushDevice();
    QDeadlineTimer deadline(handOverLimitMs);
    bool moved = m_device.bytesToWrite() < accepted;
    if (m_stalled && !moved)
        return;
    while (isOpen() && m_device.bytesToWrite() > 0 && !deadline.hasExpired())
        if (waitForProgress(static_cast<int>(deadline.remainingTime())))
            moved = true;
        else
            break;
    m_stalled = !moved;
}

void StreamLink::beginCall()
{
    m_backgroundHandOver.stop();
}

void StreamLink::endCall()
{
    handOver();
    if (!isOpen() || m_device.bytesToWrite() == 0)
        return;
    // While nothing moves the pauses grow: a printer may be out of paper over night.
    static constexpr std::chrono::milliseconds shortestPause(10);
    static constexpr std::chrono::milliseconds longestPause(1000);
    m_backgroundHandOver.start(
        [this, pause = shortestPause]() mutable -> std::optional<std::chrono::milliseconds> {
            const qint64 before = m_device.bytesToWrite();
            flushDevice();
            const qint64 left = m_device.bytesToWrite();
            if (!isOpen() || left == 0)
                return std::nullopt;
            pause = left < before ? shortestPause : std::min(pause * 2, longestPause);
            return pause;
        });
}

// Returns whether bytes left. A wait that ends early without progress is a failing link.
bool StreamLink::waitForProgress(int timeoutMs)
{
    const qint64 before = m_device.bytesToWrite();
    m_device.waitForBytesWritten(timeoutMs);
    return m_device.bytesToWrite() < before;
}

void StreamLink::deliverAll()
{
    constexpr int sliceMs = 250;
    flushDevice();
    // The system takes more only once much of what it has is gone, which takes a slow printer longer
    // than the limit: what reaches the printer is progress too.
    const auto left = [this] { return m_device.bytesToWrite() + bytesInSystem(); };
    StallTimer stall(left(), closeStallLimitMs);
    while (isOpen() && m_device.bytesToWrite() > 0) {
        QElapsedTimer slice;
        slice.start();
        const bool moved = waitForProgress(sliceMs);
        if (!moved && slice.elapsed() < sliceMs / 2)
            return; // not a time-out: the link failed
        if (!stall.goesOn(left()))
            return;
    }
}

bool StreamLink::waitReadable(int timeoutMs)
{
    return isOpen() && (m_device.bytesAvailable() > 0 || m_device.waitForReadyRead(timeoutMs));
}

QByteArray StreamLink::takeWaiting()
{
    QByteArray bytes = m_device.readAll();
    for (int round = 0; round < discardRounds && isOpen() && m_device.waitForReadyRead(0); ++round)
        bytes += m_device.readAll();
    return bytes;
}

QByteArray StreamLink::readReply(QDeadlineTimer deadline, const ReplyIsWhole& isWhole)
{
    QByteArray reply = takeWaiting();
    while (!isWhole(reply) && reply.size() < replyLimit && isOpen()) {
        const auto left = static_cast<int>(deadline.remainingTime());
        const int wait = reply.isEmpty() ? left : std::min(left, replyGapMs);
        askForMore();
        if (wait <= 0 || !m_device.waitForReadyRead(wait))
            break;
        reply += takeWaiting();
    }
    reply.truncate(replyLimit); // as the caller's buffer is
    return reply;
}

void StreamLink::discardInput()
{
    if (isOpen())
        takeWaiting();
}

StallTimer::StallTimer(qint64 remaining, int limitMs) : m_remaining(remaining), m_limitMs(limitMs)
{
    m_sinceProgress.start();
}

bool StallTimer::goesOn(qint64 remaining)
{
    if (remaining < m_remaining)
        m_sinceProgress.restart();
    m_remaining = remaining;
    return m_sinceProgress.elapsed() < m_limitMs;
}

} // namespace q7
