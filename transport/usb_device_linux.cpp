#include "usb_device.h"

#include <QDeadlineTimer>
#include <QFile>
#include <cerrno>
#include <fcntl.h>
#include <poll.h>
#include <unistd.h>
#include <utility>

namespace q7
{
namespace
{

/** Waits until the descriptor is ready for the events or the deadline passes. */
bool waitFor(int descriptor, short events, const QDeadlineTimer& deadline)
{
    pollfd entry = {descriptor, events, 0};
    int ready = -1;
    do
        ready = ::poll(&entry, 1, static_cast<int>(deadline.remainingTime()));
    while (ready < 0 && errno == EINTR);
    return ready > 0;
}

class UsblpDevice : public UsbDevice
{
public:
    explicit UsblpDevice(int descriptor) : m_descriptor(descriptor) {}
    ~UsblpDevice() override { UsblpDevice::close(); }
    UsblpDevice(const UsblpDevice&) = delete;
    UsblpDevice& operator=(const UsblpDevice&) = delete;

    Written write(const QByteArray& bytes, int timeoutMs) override
    {
        const QDeadlineTimer deadline(timeoutMs);
        int count = 0;
        while (count < bytes.size() && waitFor(m_descriptor, POLLOUT, deadline)) {
            const ssize_t written = ::write(m_descriptor, bytes.constData() + count,
                                            static_cast<std::size_t>(bytes.size() - count));
            if (written > 0)
                count += static_cast<int>(written);
            else if (written < 0 && errno != EAGAIN && errno != EINTR)
                return {errno, count};
        }
        return {0, count};
    }

    QByteArray read(int timeoutMs) override
    {
        const QDeadlineTimer deadline(timeoutMs);
        char buffer[usbReplyLimit];
        while (waitFor(m_descriptor, POLLIN, deadline)) {
            const ssize_t count = ::read(m_descriptor, buffer, sizeof buffer);
            if (count > 0)
                return QByteArray(buffer, static_cast<int>(count));
            // A printer with nothing to say answers with an empty packet; the driver then reports
            // readiness again at once.
            if (count == 0)
                ::poll(nullptr, 0, emptyReadPauseMs);
            else if (errno != EAGAIN && errno != EINTR)
                return {};
        }
        return {};
    }

    int close() override
    {
        if (m_descriptor < 0)
            return 0;
        // The driver takes bytes before it transfers them, and closing ends the transfer under way.
        // It can take more once that is done.
        waitFor(m_descriptor, POLLOUT, QDeadlineTimer(transferLimitMs));
        // The number is free again whatever close() says, and may be another's by the next call.
        const int descriptor = std::exchange(m_descriptor, -1);
        return ::close(descriptor) != 0 && errno != EINTR ? errno : 0;
    }

private:
    static constexpr int emptyReadPauseMs = 5;
    static constexpr int transferLimitMs = 5000;

    int m_descriptor;
};

} // namespace

UsbOpened openUsbDevice(const QString& path)
{
    const int descriptor =
        ::open(QFile::encodeName(path).constData(), O_RDWR | O_NONBLOCK | O_CLOEXEC | O_NOCTTY);
    if (descriptor < 0)
        return {nullptr, errno};
    return {std::make_unique<UsblpDevice>(descriptor), 0};
}

} // namespace q7
