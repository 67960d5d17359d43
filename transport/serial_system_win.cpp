#include "serial_system.h"

#include "stream_link.h"

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

void waitUntilDrained(QSerialPort& port)
{
    constexpr DWORD pollMs = 5;
    const auto queued = [&port]() -> qint64 {
        DWORD errors = 0;
        COMSTAT status = {};
        return ::ClearCommError(port.handle(), &errors, &status) != 0 ? status.cbOutQue : 0;
    };
    StallTimer stall(queued(), closeStallLimitMs);
    for (qint64 left = queued(); left > 0 && stall.goesOn(left); left = queued())
        ::Sleep(pollMs);
}

} // namespace q7
