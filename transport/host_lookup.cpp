#include "host_lookup.h"

#include "guest.h"

#include <asio/executor_work_guard.hpp>
#include <asio/io_context.hpp>
#include <asio/ip/tcp.hpp>
#include <asio/post.hpp>

#include <memory>

namespace q7
{
namespace
{

// Blocks for as long as the system's resolver does.
std::vector<asio::ip::address> systemLookUp(const std::string& host)
{
    addrinfo hints = {};
    hints.ai_socktype = SOCK_STREAM;
    addrinfo* found = nullptr;
    if (::getaddrinfo(host.c_str(), nullptr, &hints, &found) != 0)
        return {};
    const std::unique_ptr<addrinfo, decltype(&::freeaddrinfo)> owner(found, ::freeaddrinfo);
    std::vector<asio::ip::address> addresses;
    for (const addrinfo* entry = found; entry != nullptr; entry = entry->ai_next) {
        asio::ip::tcp::endpoint endpoint;
        if (entry->ai_addrlen > endpoint.capacity())
            continue;
        std::memcpy(endpoint.data(), entry->ai_addr, entry->ai_addrlen);
        endpoint.resize(entry->ai_addrlen);
        addresses.push_back(endpoint.address());
    }
    return addresses;
}

/** What a look-up and whoever waits for it share; the last of them lets it go. */
struct Answer {
    asio::io_context context{1};
    asio::executor_work_guard<asio::io_context::executor_type> isAwaited{context.get_executor()};
    std::vector<asio::ip::address> addresses;
};

} // namespace

HostLookup lookUpHost(const std::string& host, Deadline deadline)
{
    if (host.empty())
        return {{}, false};
    std::error_code notNumeric;
    const asio::ip::address numeric = asio::ip::make_address(host, notNumeric);
    if (!notNumeric)
        return {{numeric}, false};

    const auto answer = std::make_shared<Answer>();
    OwnThread resolver([answer, host] {
        std::vector<asio::ip::address> found = systemLookUp(host);
        asio::post(answer->context,
                   [&to = answer->addresses, found = std::move(found)] { to = found; });
    });
    if (answer->context.run_one_until(deadline) > 0) {
        resolver.stop();
        return {answer->addresses, false};
    }
    resolver.leaveBehind(); // it cannot be stopped
    return {{}, true};
}

} // namespace q7
