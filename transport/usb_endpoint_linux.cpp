#include "usb_endpoint.h"

#include "asio_endpoint.h"
#include "descriptor_linux.h"

#include <asio/posix/stream_descriptor.hpp>

#include <cerrno>
#include <fcntl.h>
#include <poll.h>
#include <unistd.h>

namespace q7
{
namespace
{

class UsblpEndpoint : public AsioEndpoint<asio::posix::stream_descriptor>
{
public:
    using AsioEndpoint::AsioEndpoint;

    // The driver takes bytes before it transfers them, and closing ends the transfer under way. It
    // can take more once that is done.
    std::optional<std::size_t> bytesInSystem() override
    {
        pollfd entry = {m_stream.native_handle(), POLLOUT, 0};
        return ::poll(&entry, 1, 0) == 0 ? 1 : 0;
    }
};

} // namespace

UsbOpened openUsb(asio::io_context& context, const QString& path)
{
    OwnedDescriptor descriptor(aboveStandard(
        ::open(path.toStdString().c_str(), O_RDWR | O_NONBLOCK | O_CLOEXEC | O_NOCTTY)));
    if (!descriptor.isOpen())
        return {nullptr, errno};
    asio::posix::stream_descriptor device(context);
    const std::error_code refusal =
        descriptor.handTo([&](int given, std::error_code& error) { device.assign(given, error); });
    if (refusal)
        return {nullptr, refusal.value()};
    return {std::make_unique<UsblpEndpoint>(std::move(device)), 0};
}

} // namespace q7
