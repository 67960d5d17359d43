#include "usb_link.h"

#include "q7_impressora.h"

#include <algorithm>
#include <limits>

namespace q7
{
namespace
{

constexpr int writeTimeoutMs = 1500;
constexpr int writeTimeoutPerByteMs = 2;
// What a printer that took nothing last time is given to show that it moves again.
constexpr int stalledWriteTimeoutMs = 1;

int writeTimeoutMsFor(int bytes)
{
    const qint64 timeoutMs = writeTimeoutMs + qint64{writeTimeoutPerByteMs} * bytes;
    return static_cast<int>(std::min<qint64>(timeoutMs, std::numeric_limits<int>::max()));
}

} // namespace

UsbLink::UsbLink(std::unique_ptr<UsbDevice> device) : m_device(std::move(device)) {}

bool UsbLink::isOpen() const
{
    return m_device != nullptr;
}

int UsbLink::send(const QByteArray& bytes)
{
    if (!isOpen())
        return Q7_ERR_NOT_OPEN;
    const int timeoutMs = writeTimeoutMsFor(bytes.size());
    UsbDevice::Written written =
        m_device->write(bytes, m_stalled ? stalledWriteTimeoutMs : timeoutMs);
    const bool movesAgain = m_stalled && written.count > 0;
    if (movesAgain && written.error == 0 && written.count < bytes.size()) {
        const UsbDevice::Written rest = m_device->write(bytes.mid(written.count), timeoutMs);
        written = {rest.error, written.count + rest.count};
    }
    // The system's own number, although it can be taken for a count: applications know it.
    if (written.error != 0)
        return written.error;
    m_stalled = written.count == 0 && !bytes.isEmpty();
    return written.count == 0 ? int{Q7_ERR_NOT_SENT} : written.count;
}

bool UsbLink::waitReadable(int /*timeoutMs*/)
{
    return true;
}

QByteArray UsbLink::readReply(QDeadlineTimer deadline, const ReplyIsWhole& isWhole)
{
    QByteArray reply;
    while (isOpen() && !isWhole(reply) && reply.size() < usbReplyLimit) {
        const auto left = static_cast<int>(deadline.remainingTime());
        const QByteArray more = m_device->read(reply.isEmpty() ? left : std::min(left, replyGapMs));
        if (more.isEmpty())
            break;
        reply += more;
    }
    reply.truncate(usbReplyLimit);
    return reply;
}

int UsbLink::close()
{
    if (!isOpen())
        return Q7_ERR_NOT_OPEN;
    const int error = m_device->close();
    if (error == 0)
        m_device.reset();
    return error;
}

} // namespace q7
