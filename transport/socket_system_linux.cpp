#include "socket_system.h"

#include <linux/sockios.h>
#include <memory>
#include <netdb.h>
#include <netinet/in.h>
#include <netinet/tcp.h>
#include <sys/ioctl.h>
#include <sys/socket.h>

namespace q7
{

void shutDownSending(qintptr socketDescriptor)
{
    ::shutdown(static_cast<int>(socketDescriptor), SHUT_WR);
}

qint64 bytesInSystem(qintptr socketDescriptor)
{
    int bytes = 0;
    return ::ioctl(static_cast<int>(socketDescriptor), SIOCOUTQ, &bytes) == 0 ? bytes : 0;
}

// The system returns to delayed acknowledgement by itself: to be asked for before each wait.
void acknowledgeAtOnce(qintptr socketDescriptor)
{
    const int on = 1;
    ::setsockopt(static_cast<int>(socketDescriptor), IPPROTO_TCP, TCP_QUICKACK, &on, sizeof on);
}

std::vector<QHostAddress> systemLookUp(const QByteArray& host)
{
    addrinfo hints = {};
    hints.ai_socktype = SOCK_STREAM;
    addrinfo* found = nullptr;
    if (::getaddrinfo(host.constData(), nullptr, &hints, &found) != 0)
        return {};
    const std::unique_ptr<addrinfo, decltype(&::freeaddrinfo)> owner(found, ::freeaddrinfo);
    std::vector<QHostAddress> addresses;
    for (const addrinfo* entry = found; entry != nullptr; entry = entry->ai_next)
        addresses.emplace_back(entry->ai_addr);
    return addresses;
}

} // namespace q7
