// The system's side of serial ports.
#pragma once

#include <QString>

class QSerialPort;

namespace q7
{

/** The port that a caller's text, which arrives in capitals, names; empty when there is none. */
QString resolveSerialPortName(const QString& text);

/** Makes an open port ready to write from threads without an event dispatcher. Runs in the thread
 *  that opened it. */
void prepareSerialWrites(QSerialPort& port);

/** Hands the system what it takes at once. */
void writeWithoutWaiting(QSerialPort& port);

/** Bytes that the system took and that have not gone down the line yet. */
qint64 bytesInSystem(QSerialPort& port);

} // namespace q7
