#include "loopback_sink.h"

#include <cstring>
#include <netinet/in.h>
#include <sys/socket.h>
#include <unistd.h>

LoopbackSink::LoopbackSink() : m_listener(::socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0))
{
    sockaddr_in address = {};
    address.sin_family = AF_INET;
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    socklen_t size = sizeof address;
    ::bind(m_listener, reinterpret_cast<sockaddr*>(&address), size);
    ::listen(m_listener, 4);
    ::getsockname(m_listener, reinterpret_cast<sockaddr*>(&address), &size);
    m_port = ntohs(address.sin_port);
    m_thread = std::thread([this] { serve(); });
}

LoopbackSink::~LoopbackSink()
{
    ::shutdown(m_listener, SHUT_RDWR); // ends accept
    m_thread.join();
    ::close(m_listener);
}

void LoopbackSink::serve()
{
    for (int link = -1; (link = ::accept(m_listener, nullptr, nullptr)) >= 0; ::close(link)) {
        char buffer[65536];
        for (ssize_t count = 0; (count = ::recv(link, buffer, sizeof buffer, 0)) > 0;) {
            constexpr char query[] = {0x1D, 0x49, 0x43}; // GS I 67
            if (count >= 3 && std::memcmp(buffer, query, sizeof query) == 0)
                ::send(link, "VANTA", 6, MSG_NOSIGNAL);
        }
    }
}
