// A USB printer: every send is one write to its device.
#pragma once

#include "link.h"
#include "usb_device.h"

namespace q7
{

class UsbLink : public Link
{
public:
    explicit UsbLink(std::unique_ptr<UsbDevice> device);

    bool isOpen() const override;
    int send(const QByteArray& bytes) override;
    bool waitReadable(int timeoutMs) override;
    QByteArray readReply(QDeadlineTimer deadline, const ReplyIsWhole& isWhole) override;
    int close() override;

private:
    std::unique_ptr<UsbDevice> m_device; // null once closed
    // Set while the printer takes nothing: a receipt's hundreds of sends must not wait each.
    bool m_stalled = false;
};

} // namespace q7
