#include "tcp_endpoint.h"

#include "asio_endpoint.h"
#include "host_lookup.h"
#include "socket_system.h"

#include <asio/ip/tcp.hpp>

namespace q7
{
namespace
{

using asio::ip::tcp;

/** How applications know a failure: the numbers and texts of the socket layer that the library had
 *  from the start. */
struct KnownError {
    std::errc condition;
    int number;
    const char* text;
};

constexpr KnownError knownErrors[] = {
    {std::errc::connection_refused, 0, "Connection refused"},
    {std::errc::connection_reset, 1, "The remote host closed the connection"},
    {std::errc::permission_denied, 3, "Permission denied"},
    {std::errc::operation_not_permitted, 3, "Permission denied"},
    {std::errc::too_many_files_open, 4, "Out of resources"},
    {std::errc::too_many_files_open_in_system, 4, "Out of resources"},
    {std::errc::no_buffer_space, 4, "Out of resources"},
    {std::errc::not_enough_memory, 4, "Out of resources"},
    {std::errc::timed_out, 7, "Connection timed out"}, // by the system, before our own limit
    {std::errc::host_unreachable, 7, "Host unreachable"},
    {std::errc::network_unreachable, 7, "Network unreachable"},
    {std::errc::network_down, 7, "Network unreachable"},
    {std::errc::address_in_use, 7, "The bound address is already in use"},
    {std::errc::address_not_available, 9, "The address is not available"},
    {std::errc::address_family_not_supported, 10, "Unsupported socket operation"},
};

TcpOpened failed(const std::error_code& error)
{
    for (const KnownError& known : knownErrors)
        if (conditionOf(error) == known.condition)
            return {nullptr, known.number, known.text};
    return {nullptr, -1, "Unknown error"};
}

class TcpEndpoint : public AsioEndpoint<tcp::socket>
{
public:
    using AsioEndpoint::AsioEndpoint;

    std::size_t writeNow(std::string_view bytes, std::error_code& error) override
    {
        const std::size_t count =
            m_stream.write_some(asio::buffer(bytes.data(), bytes.size()), error);
        if (error == asio::error::would_block)
            error.clear();
        return count;
    }

    // An error here is told by the next operation, too.
    std::optional<std::size_t> bytesInSystem() override
    {
        return q7::bytesInSystem(m_stream.native_handle());
    }

    void askForMore() override { acknowledgeAtOnce(m_stream.native_handle()); }

    void endSending() override
    {
        std::error_code ignored;
        m_stream.shutdown(tcp::socket::shutdown_send, ignored);
    }
};

} // namespace

TcpOpened openTcp(asio::io_context& context, const std::string& host, unsigned short port,
                  Deadline deadline)
{
    const TcpOpened timedOut = {nullptr, 5, "Socket operation timed out"};
    startSockets();
    const HostLookup lookup = lookUpHost(host, deadline);
    if (lookup.timedOut)
        return {nullptr, timedOut.error, timedOut.errorText};
    TcpOpened outcome = {nullptr, 2, "Host not found"};
    auto untried = static_cast<int>(lookup.addresses.size());
    for (const asio::ip::address& address : lookup.addresses) {
        // An address that swallows packets must leave time for the next.
        const Deadline share = Clock::now() + (deadline - Clock::now()) / untried--;
        const tcp::endpoint target(address, port);
        tcp::socket socket(context);
        std::error_code error = openSocket(socket, target.protocol());
        if (!error) {
            bool isDone = false;
            socket.async_connect(target, [&](const std::error_code& result) {
                error = result;
                isDone = true;
            });
            while (!isDone && context.run_one_until(share) > 0)
                ;
            if (!isDone) {
                std::error_code ignored;
                socket.close(ignored); // ends the attempt, whose handler refers to this block
                while (!isDone)
                    context.run_one();
                outcome = {nullptr, timedOut.error, timedOut.errorText};
                continue;
            }
        }
        if (!error)
            socket.non_blocking(true, error);
        if (error) {
            outcome = failed(error);
            continue;
        }
        prepareSocket(socket.native_handle());
        return {std::make_unique<TcpEndpoint>(std::move(socket)), 0, ""};
    }
    return outcome;
}

} // namespace q7
