#include "system_links.h"

namespace virtual_printer
{
namespace
{

/** A socket option that is a switch, for asio's set_option. */
struct ExclusiveAddress {
    BOOL on = TRUE;

    template <typename Protocol> int level(const Protocol&) const { return SOL_SOCKET; }
    template <typename Protocol> int name(const Protocol&) const { return SO_EXCLUSIVEADDRUSE; }
    template <typename Protocol> const void* data(const Protocol&) const { return &on; }
    template <typename Protocol> std::size_t size(const Protocol&) const { return sizeof on; }
};

} // namespace

void claimPort(asio::ip::tcp::acceptor& acceptor)
{
    // Here reuse would let a second program take the port away.
    acceptor.set_option(ExclusiveAddress());
}

void keepBuffersSmall(asio::ip::tcp::acceptor& acceptor)
{
    acceptor.set_option(asio::socket_base::receive_buffer_size(4096));
}

SerialLine openSerialLine(asio::io_context& /*context*/, const std::string& /*link*/)
{
    throw std::system_error(std::make_error_code(std::errc::not_supported),
                            "no pseudo-terminals on Windows");
}

} // namespace virtual_printer
