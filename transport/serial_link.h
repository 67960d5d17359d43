// A serial port with a printer on it.
#pragma once

#include "stream_link.h"

#include <QSerialPort>
#include <QString>
#include <memory>

namespace q7
{

class SerialLink : public StreamLink
{
public:
    struct Opened {
        std::unique_ptr<SerialLink> link; // null when the port could not be opened
        int result;                       // 0 or a Q7_ERR_SERIAL_* code, Q7_ERR_FAILED
    };

    /** Opens a port with 8 data bits, no parity, one stop bit, no flow control. */
    static Opened open(const QString& portName, int bitsPerSecond);

    explicit SerialLink(std::unique_ptr<QSerialPort> port);
    ~SerialLink() override;

    bool isOpen() const override;
    int close() override;

protected:
    void flushDevice() override;

private:
    std::unique_ptr<QSerialPort> m_port;
};

} // namespace q7
