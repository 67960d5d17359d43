// One physical link to a printer: what the connection needs of a USB device, a serial port or a
// TCP socket once it is open.
#pragma once

#include <QByteArray>
#include <QDeadlineTimer>
#include <functional>

namespace q7
{

/** Tells from what has arrived whether a reply is whole. */
using ReplyIsWhole = std::function<bool(const QByteArray&)>;

/** A reply that has begun is whole, whatever its reader expects, once this time passes without a
 *  further byte: serial printers send their replies byte by byte. */
constexpr int replyGapMs = 30;

class Link
{
public:
    virtual ~Link() = default;

    virtual bool isOpen() const = 0;

    /** Takes bytes for the printer. Returns their count, Q7_ERR_NOT_SENT when nothing was taken,
     *  Q7_ERR_NOT_OPEN, or over USB a positive system error number. Serial ports and TCP count in a
     *  signed 16-bit number: from 32768 bytes in one write on it wraps, and a wrapped count below 1
     *  reads Q7_ERR_NOT_SENT although the bytes are sent. */
    virtual int send(const QByteArray& bytes) = 0;

    /** Hands over what send() took, waiting at most 250 ms. Called once when an export returns or
     *  before a reply is awaited, so that the sends of one call leave together. */
    virtual void handOver() {}

    /** A call begins: the link is the calling thread's. */
    virtual void beginCall() {}

    /** A call ends: what a slow printer has not taken yet goes on being handed over, so that the
     *  tail of a receipt does not wait for the application's next call. */
    virtual void endCall() {}

    /** Waits until a byte can be read. Over USB only reading itself can tell: true at once. */
    virtual bool waitReadable(int timeoutMs) = 0;

    /** Reads one reply. Returns what had arrived when it was whole or the deadline passed. */
    virtual QByteArray readReply(QDeadlineTimer deadline, const ReplyIsWhole& isWhole) = 0;

    /** Throws away what waits to be read: late answers to earlier queries. */
    virtual void discardInput() {}

    /** Delivers what was accepted, within a bound, and closes. Returns 0 or a result code. */
    virtual int close() = 0;
};

} // namespace q7
