#include "socket_system.h"

#include <csignal>
#include <ctime>
#include <memory>
#include <netdb.h>
#include <netinet/in.h>
#include <netinet/tcp.h>
#include <sys/socket.h>

namespace q7
{
namespace
{

sigset_t brokenPipeSet()
{
    sigset_t set;
    sigemptyset(&set);
    sigaddset(&set, SIGPIPE);
    return set;
}

} // namespace

void shutDownSending(qintptr socketDescriptor)
{
    ::shutdown(static_cast<int>(socketDescriptor), SHUT_WR);
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

BrokenPipeGuard::BrokenPipeGuard()
{
    const sigset_t brokenPipe = brokenPipeSet();
    sigset_t before;
    m_blockedHere =
        pthread_sigmask(SIG_BLOCK, &brokenPipe, &before) == 0 && sigismember(&before, SIGPIPE) == 0;
}

BrokenPipeGuard::~BrokenPipeGuard()
{
    if (!m_blockedHere)
        return;
    const sigset_t brokenPipe = brokenPipeSet();
    // Takes the signal, if one was raised, before it could be delivered.
    const timespec now = {};
    sigtimedwait(&brokenPipe, nullptr, &now);
    pthread_sigmask(SIG_UNBLOCK, &brokenPipe, nullptr);
}

} // namespace q7
