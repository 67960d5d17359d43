// What the system's socket interface offers beyond QTcpSocket.
#pragma once

#include <QHostAddress>
#include <QString>
#include <vector>

namespace q7
{

/** Tells the other side that nothing more will come; reading goes on. */
void shutDownSending(qintptr socketDescriptor);

/** Bytes that the system took and that the other side has not acknowledged yet; 0 where the system
 *  does not tell. */
qint64 bytesInSystem(qintptr socketDescriptor);

/** Acknowledges at once what has arrived, and what arrives next: a printer that sends its reply in
 *  pieces and waits for the acknowledgement of each would otherwise pause longer than replyGapMs. */
void acknowledgeAtOnce(qintptr socketDescriptor);

/** The addresses of a host name or a numeric address, in the system's order of preference; empty
 *  when there are none. Blocks for as long as the system's resolver does. */
std::vector<QHostAddress> systemLookUp(const QByteArray& host);

} // namespace q7
