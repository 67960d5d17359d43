#include "tcp_link.h"

#include "host_lookup.h"
#include "q7_impressora.h"
#include "socket_system.h"
#include "thread_free.h"

#include <QNetworkProxy>
#include <deque>

namespace q7
{
namespace
{

/** How long a printer may take to close its side after ours was closed. */
constexpr int farCloseLimitMs = 500;

std::unique_ptr<QTcpSocket> makeSocket()
{
    std::unique_ptr<QTcpSocket> socket = makeThreadFree<QTcpSocket>();
    // A host program's proxy settings are for its own traffic, not for the printer on the counter.
    socket->setProxy(QNetworkProxy::NoProxy);
    return socket;
}

// Reads and drops what the printer sends until it closes its side.
void drain(QTcpSocket& socket, int timeoutMs)
{
    const QDeadlineTimer deadline(timeoutMs);
    do
        socket.readAll();
    while (socket.state() == QAbstractSocket::ConnectedState &&
           socket.waitForReadyRead(static_cast<int>(deadline.remainingTime())) &&
           !deadline.hasExpired());
}

/** Sockets whose printer still reads: closing one while its printer sends unasked status would
 *  reset the connection and throw away what the printer has yet to read. They are closed as their
 *  printers finish, looked at whenever a link is opened or closed. */
class FinishingSockets
{
public:
    void add(std::unique_ptr<QTcpSocket> socket)
    {
        m_sockets.push_back(std::move(socket));
        if (m_sockets.size() > atMost)
            m_sockets.pop_front();
    }

    void reap()
    {
        for (auto socket = m_sockets.begin(); socket != m_sockets.end();) {
            // One that was given up with bytes left is held only so that the system goes on sending
            // what it has; reading from it would try to write the rest.
            if ((*socket)->bytesToWrite() == 0)
                drain(**socket, 0);
            const bool finished = (*socket)->state() != QAbstractSocket::ConnectedState;
            socket = finished ? m_sockets.erase(socket) : socket + 1;
        }
    }

private:
    static constexpr std::size_t atMost = 8;
    std::deque<std::unique_ptr<QTcpSocket>> m_sockets;
};

FinishingSockets& finishingSockets()
{
    static auto& sockets = *new FinishingSockets; // the system closes what the process leaves
    return sockets;
}

} // namespace

TcpLink::Opened TcpLink::connect(const QString& host, quint16 port, int timeoutMs)
{
    finishingSockets().reap();

    const QDeadlineTimer deadline(timeoutMs);
    const HostLookup lookup = lookUpHost(host, deadline);
    if (lookup.timedOut)
        return {nullptr, QAbstractSocket::SocketTimeoutError, "Socket operation timed out"};
    if (lookup.addresses.empty())
        return {nullptr, QAbstractSocket::HostNotFoundError, "Host not found"};

    Opened outcome = {nullptr, QAbstractSocket::UnknownSocketError, {}};
    std::size_t untried = lookup.addresses.size();
    for (const QHostAddress& address : lookup.addresses) {
        // An address that swallows packets must leave time for the next.
        const auto share =
            static_cast<int>(deadline.remainingTime() / static_cast<qint64>(untried));
        --untried;
        std::unique_ptr<QTcpSocket> socket = makeSocket();
        socket->connectToHost(address, port);
        if (socket->waitForConnected(share)) {
            // Small writes must not wait for the acknowledgement of the ones before.
            socket->setSocketOption(QAbstractSocket::LowDelayOption, 1);
            return {std::make_unique<TcpLink>(std::move(socket)), 0, {}};
        }
        outcome.error = socket->error();
        outcome.errorText = socket->errorString();
    }
    return outcome;
}

TcpLink::TcpLink(std::unique_ptr<QTcpSocket> socket)
    : StreamLink(*socket), m_socket(std::move(socket))
{
}

TcpLink::~TcpLink()
{
    stopBackground();
}

bool TcpLink::isOpen() const
{
    return m_socket && m_socket->state() == QAbstractSocket::ConnectedState;
}

void TcpLink::flushDevice()
{
    m_socket->flush();
}

qint64 TcpLink::bytesInSystem()
{
    return q7::bytesInSystem(m_socket->socketDescriptor());
}

void TcpLink::askForMore()
{
    acknowledgeAtOnce(m_socket->socketDescriptor());
}

int TcpLink::close()
{
    if (isOpen())
        deliverAll();
    if (isOpen()) {
        shutDownSending(m_socket->socketDescriptor());
        if (m_socket->bytesToWrite() == 0)
            drain(*m_socket, farCloseLimitMs);
        if (isOpen())
            finishingSockets().add(std::move(m_socket));
    }
    finishingSockets().reap();
    m_socket.reset();
    return Q7_OK;
}

} // namespace q7
