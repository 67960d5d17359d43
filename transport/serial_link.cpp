#include "serial_link.h"

#include "q7_impressora.h"
#include "serial_system.h"
#include "signal_block.h"
#include "stream_link.h"
#include "thread_free.h"

#include <QSerialPort>
#include <QThread>

namespace q7
{
namespace
{

/** Runs a function on a thread that has an event dispatcher, and waits for its end. */
template <typename Function> void runOnQtThread(Function function)
{
    const std::unique_ptr<QThread> thread(QThread::create(function));
    const SignalBlock everySignal(SignalBlock::Every); // the host's are for its own threads
    thread->start();
    thread->wait();
}

int codeOf(QSerialPort::SerialPortError error)
{
    switch (error) {
    case QSerialPort::PermissionError:
        return Q7_ERR_SERIAL_DENIED;
    case QSerialPort::UnknownError:
        return Q7_ERR_SERIAL_UNKNOWN;
    case QSerialPort::DeviceNotFoundError:
        return Q7_ERR_SERIAL_NOT_FOUND;
    default:
        return Q7_ERR_FAILED;
    }
}

class SerialLink : public StreamLink
{
public:
    explicit SerialLink(std::unique_ptr<QSerialPort> port)
        : StreamLink(*port), m_port(std::move(port))
    {
    }
    ~SerialLink() override { stopBackground(); }
    SerialLink(const SerialLink&) = delete;
    SerialLink& operator=(const SerialLink&) = delete;

    bool isOpen() const override { return m_port->isOpen(); }

    int close() override
    {
        if (m_port->isOpen()) {
            deliverAll();
            waitUntilDrained();
            m_port->flush();
            m_port->close();
        }
        return m_port->isOpen() ? Q7_ERR_FAILED : Q7_OK;
    }

protected:
    void flushDevice() override { writeWithoutWaiting(*m_port); }
    qint64 bytesInSystem() override { return q7::bytesInSystem(*m_port); }

private:
    // Until what the system took has gone down the line.
    void waitUntilDrained()
    {
        constexpr unsigned long pollMs = 5;
        StallTimer stall(bytesInSystem(), closeStallLimitMs);
        for (qint64 left = bytesInSystem(); left > 0 && stall.goesOn(left); left = bytesInSystem())
            QThread::msleep(pollMs);
    }

    std::unique_ptr<QSerialPort> m_port;
};

} // namespace

SerialOpened openSerialLink(const QString& address, int bitsPerSecond)
{
    const QString portName = resolveSerialPortName(address);
    if (portName.isEmpty())
        return {nullptr, Q7_ERR_SERIAL_NOT_FOUND};
    auto port = std::unique_ptr<QSerialPort>();
    int result = Q7_ERR_FAILED; // also when there is no thread to be had
    // A serial port makes its notifiers when it opens and when it first writes, and complains where
    // there is no event dispatcher for them. It gets one for that long and then leaves its thread.
    runOnQtThread([&] {
        port = std::make_unique<QSerialPort>();
        port->setPortName(portName);
        port->setBaudRate(bitsPerSecond);
        port->setParity(QSerialPort::NoParity);
        port->setDataBits(QSerialPort::Data8);
        port->setStopBits(QSerialPort::OneStop);
        port->setFlowControl(QSerialPort::NoFlowControl);
        const bool isOpen = port->open(QIODevice::ReadWrite);
        result = isOpen ? int{Q7_OK} : codeOf(port->error());
        if (isOpen)
            prepareSerialWrites(*port);
        leaveThread(*port);
    });
    if (result != Q7_OK)
        return {nullptr, result};
    return {std::make_unique<SerialLink>(std::move(port)), Q7_OK};
}

} // namespace q7
