#include "socket_system.h"

#include <mstcpip.h>

namespace q7
{
namespace
{

// Asio would start Winsock while the library loads, which the system forbids. This object, made
// before any of Asio's, tells it to leave that to us.
__attribute__((init_priority(101))) const asio::detail::winsock_init<>::manual winsockIsOurs;

// A small one shows how a slow printer moves.
constexpr int sendBufferBytes = 8192;

} // namespace

// Once, and never ended: the only place for that would be the unload, where the system forbids it.
void startSockets()
{
    static const bool isStarted = [] {
        WSADATA data;
        return ::WSAStartup(MAKEWORD(2, 2), &data) == 0;
    }();
    static_cast<void>(isStarted);
}

// MinGW's C++ library takes Winsock's numbers for no condition at all.
std::errc conditionOf(const std::error_code& socketError)
{
    switch (socketError.value()) {
    case WSAECONNREFUSED:
        return std::errc::connection_refused;
    case WSAECONNRESET:
        return std::errc::connection_reset;
    case WSAEACCES:
        return std::errc::permission_denied;
    case WSAEMFILE:
        return std::errc::too_many_files_open;
    case WSAENOBUFS:
        return std::errc::no_buffer_space;
    case ERROR_NOT_ENOUGH_MEMORY:
        return std::errc::not_enough_memory;
    case WSAETIMEDOUT:
    case ERROR_SEM_TIMEOUT: // what a connection attempt in the background ends with
        return std::errc::timed_out;
    case WSAEHOSTUNREACH:
    case ERROR_HOST_UNREACHABLE:
        return std::errc::host_unreachable;
    case WSAENETUNREACH:
    case ERROR_NETWORK_UNREACHABLE:
        return std::errc::network_unreachable;
    case WSAENETDOWN:
        return std::errc::network_down;
    case WSAEADDRINUSE:
        return std::errc::address_in_use;
    case WSAEADDRNOTAVAIL:
        return std::errc::address_not_available;
    case WSAEAFNOSUPPORT:
        return std::errc::address_family_not_supported;
    default:
        return std::errc::io_error;
    }
}

std::error_code openSocket(asio::ip::tcp::socket& socket, const asio::ip::tcp& protocol)
{
    std::error_code error;
    socket.open(protocol, error);
    if (!error)
        ::SetHandleInformation(
            reinterpret_cast<HANDLE>(static_cast<SOCKET>(socket.native_handle())),
            HANDLE_FLAG_INHERIT, 0);
    return error;
}

void prepareSocket(NativeSocket socket)
{
    const BOOL noDelay = TRUE;
    ::setsockopt(socket, IPPROTO_TCP, TCP_NODELAY, reinterpret_cast<const char*>(&noDelay),
                 sizeof noDelay);
    ::setsockopt(socket, SOL_SOCKET, SO_SNDBUF, reinterpret_cast<const char*>(&sendBufferBytes),
                 sizeof sendBufferBytes);
}

// Winsock keeps the count to itself.
std::size_t bytesInSystem(NativeSocket /*socket*/)
{
    return 0;
}

// Systems that do not know the request acknowledge as they always do.
void acknowledgeAtOnce(NativeSocket socket)
{
#ifndef SIO_TCP_SET_ACK_FREQUENCY
    constexpr DWORD SIO_TCP_SET_ACK_FREQUENCY = _WSAIOW(IOC_VENDOR, 23); // not in every kit
#endif
    int segments = 1;
    DWORD returned = 0;
    ::WSAIoctl(socket, SIO_TCP_SET_ACK_FREQUENCY, &segments, sizeof segments, nullptr, 0, &returned,
               nullptr, nullptr);
}

} // namespace q7
