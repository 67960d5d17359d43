#include "socket_system.h"

#include <winsock2.h>
#include <ws2tcpip.h>

#include <memory>

namespace q7
{
namespace
{

/** Winsock serves a process from its first start-up call to its last clean-up call. */
class Winsock
{
public:
    Winsock()
    {
        WSADATA data;
        m_started = ::WSAStartup(MAKEWORD(2, 2), &data) == 0;
    }
    ~Winsock()
    {
        if (m_started)
            ::WSACleanup();
    }
    Winsock(const Winsock&) = delete;
    Winsock& operator=(const Winsock&) = delete;

private:
    bool m_started;
};

} // namespace

void shutDownSending(qintptr socketDescriptor)
{
    ::shutdown(static_cast<SOCKET>(socketDescriptor), SD_SEND);
}

// Winsock keeps the count to itself; its buffers are small enough to show progress all the same.
qint64 bytesInSystem(qintptr /*socketDescriptor*/)
{
    return 0;
}

// Systems that do not know the request acknowledge as they always do.
void acknowledgeAtOnce(qintptr socketDescriptor)
{
#ifndef SIO_TCP_SET_ACK_FREQUENCY
    constexpr DWORD SIO_TCP_SET_ACK_FREQUENCY = _WSAIOW(IOC_VENDOR, 23); // not in every kit
#endif
    int segments = 1;
    DWORD returned = 0;
    ::WSAIoctl(static_cast<SOCKET>(socketDescriptor), SIO_TCP_SET_ACK_FREQUENCY, &segments,
               sizeof segments, nullptr, 0, &returned, nullptr, nullptr);
}

std::vector<QHostAddress> systemLookUp(const QByteArray& host)
{
    const Winsock winsock;
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
