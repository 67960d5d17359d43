// What the system's socket interface offers beyond QTcpSocket.
#pragma once

#include <QHostAddress>
#include <QString>
#include <vector>

namespace q7
{

/** Tells the other side that nothing more will come; reading goes on. */
void shutDownSending(qintptr socketDescriptor);

/** Acknowledges at once what has arrived, and what arrives next: a printer that sends its reply in
 *  pieces and waits for the acknowledgement of each would otherwise pause longer than replyGapMs. */
void acknowledgeAtOnce(qintptr socketDescriptor);

/** The addresses of a host name or a numeric address, in the system's order of preference; empty
 *  when there are none. Blocks for as long as the system's resolver does. */
std::vector<QHostAddress> systemLookUp(const QByteArray& host);

/** For its life, writing to a connection that the other side has reset raises no signal in this
 *  thread, whatever the host program has arranged. Links are used with one in force. */
class BrokenPipeGuard
{
public:
    BrokenPipeGuard();
    ~BrokenPipeGuard();
    BrokenPipeGuard(const BrokenPipeGuard&) = delete;
    BrokenPipeGuard& operator=(const BrokenPipeGuard&) = delete;

private:
    bool m_blockedHere = false;
};

} // namespace q7
