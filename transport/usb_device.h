// A USB printer device that the system offers as a file.
#pragma once

#include <QByteArray>
#include <QString>
#include <memory>

namespace q7
{

/** Bytes that a reply over USB has at most: applications give DirectIO a buffer of this size. */
constexpr int usbReplyLimit = 1024;

class UsbDevice
{
public:
    struct Written {
        int error; // 0, or the system's error number
        int count; // bytes that the printer took before the time-out
    };

    virtual ~UsbDevice() = default;

    /** Writes all bytes, and flushes where the system can; ends at the time-out with what was taken by then. */
    virtual Written write(const QByteArray& bytes, int timeoutMs) = 0;

    /** Waits at most timeoutMs for bytes and returns those that came, at most usbReplyLimit; empty when none
     *  did or the device failed. A read that was given up swallows nothing of a later reply. */
    virtual QByteArray read(int timeoutMs) = 0;

    /** Waits until what was taken has gone to the printer, at most 5 s, and closes. Returns 0, or the
     *  system's error number. */
    virtual int close() = 0;
};

struct UsbOpened {
    std::unique_ptr<UsbDevice> device; // null when it could not be opened
    int error;                         // the system's error number
};

/** Opens a device path that findUsbPrinter returned, for reading and writing. */
UsbOpened openUsbDevice(const QString& path);

} // namespace q7
