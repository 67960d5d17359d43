#include "socket_system.h"

#include "descriptor_linux.h"

#include <cerrno>
#include <linux/sockios.h>
#include <netinet/tcp.h>
#include <sys/ioctl.h>

namespace q7
{
namespace
{

void setTcpOption(NativeSocket socket, int option)
{
    const int on = 1;
    ::setsockopt(socket, IPPROTO_TCP, option, &on, sizeof on);
}

} // namespace

void startSockets() {}

std::errc conditionOf(const std::error_code& socketError)
{
    return static_cast<std::errc>(socketError.value());
}

std::error_code openSocket(asio::ip::tcp::socket& socket, const asio::ip::tcp& protocol)
{
    OwnedDescriptor descriptor(
        aboveStandard(::socket(protocol.family(), SOCK_STREAM | SOCK_CLOEXEC, 0)));
    if (!descriptor.isOpen())
        return {errno, std::system_category()};
    return descriptor.handTo(
        [&](int given, std::error_code& error) { socket.assign(protocol, given, error); });
}

void prepareSocket(NativeSocket socket)
{
    setTcpOption(socket, TCP_NODELAY);
}

std::size_t bytesInSystem(NativeSocket socket)
{
    int bytes = 0;
    return ::ioctl(socket, SIOCOUTQ, &bytes) == 0 ? static_cast<std::size_t>(bytes) : 0;
}

// The system returns to delayed acknowledgement by itself: to be asked for before each wait.
void acknowledgeAtOnce(NativeSocket socket)
{
    setTcpOption(socket, TCP_QUICKACK);
}

} // namespace q7
