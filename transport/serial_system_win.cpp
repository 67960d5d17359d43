#include "serial_system.h"

#include <QSerialPort>

#include <windows.h>

namespace q7
{

QString resolveSerialPortName(const QString& text)
{
    return text; // port names know no letter case here
}

// The port makes the timer that starts its writes with the first byte that it queues, and starts it
// again for each later one unless it is running. Left running here, in a thread that has a
// dispatcher, it never complains elsewhere; flushing and waiting start the writes.
void prepareSerialWrites(QSerialPort& port)
{
    port.write("", 1);
    port.clear(QSerialPort::Output);
}

// Flushing starts a write; that it has ended, so that the next can start, only a wait notices where
// no event loop runs.
void writeWithoutWaiting(QSerialPort& port)
{
    port.flush();
    port.waitForBytesWritten(0);
}

qint64 bytesInSystem(QSerialPort& port)
{
    DWORD errors = 0;
    COMSTAT status = {};
    return ::ClearCommError(port.handle(), &errors, &status) != 0 ? status.cbOutQue : 0;
}

} // namespace q7
