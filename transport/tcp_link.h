// A TCP connection to a network printer.
#pragma once

#include "stream_link.h"

#include <QString>
#include <QTcpSocket>
#include <memory>

namespace q7
{

class TcpLink : public StreamLink
{
public:
    struct Opened {
        std::unique_ptr<TcpLink> link; // null when the connection failed
        int error;                     // QAbstractSocket::SocketError of a failure
        QString errorText;
    };

    /** Looks the host up and tries its addresses in turn, all within timeoutMs. */
    static Opened connect(const QString& host, quint16 port, int timeoutMs);

    explicit TcpLink(std::unique_ptr<QTcpSocket> socket);
    ~TcpLink() override;

    bool isOpen() const override;
    int close() override;

protected:
    void flushDevice() override;
    qint64 bytesInSystem() override;
    void askForMore() override;

private:
    std::unique_ptr<QTcpSocket> m_socket;
};

} // namespace q7
