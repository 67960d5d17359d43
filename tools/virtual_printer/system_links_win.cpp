#include "system_links.h"

namespace virtual_printer
{

void claimPort(asio::ip::tcp::acceptor::native_handle_type listener)
{
    // Here reuse would let a second program take the port away.
    const BOOL on = TRUE;
    if (setsockopt(listener, SOL_SOCKET, SO_EXCLUSIVEADDRUSE, reinterpret_cast<const char*>(&on),
                   sizeof on) != 0) {
        throw std::system_error(WSAGetLastError(), std::system_category(), "setsockopt");
    }
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
