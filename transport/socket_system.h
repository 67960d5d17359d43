// The system's side of sockets.
#pragma once

#include <asio/ip/tcp.hpp>

#include <cstddef>
#include <system_error>

namespace q7
{

using NativeSocket = asio::ip::tcp::socket::native_handle_type;

/** Starts the system's socket layer, where it has to be started. */
void startSockets();

/** What a socket's error means: the number that the system gave, which the C++ library does not know
 *  the meaning of on every system. */
std::errc conditionOf(const std::error_code& socketError);

/** Opens a socket that no program that this process starts inherits. */
std::error_code openSocket(asio::ip::tcp::socket& socket, const asio::ip::tcp& protocol);

/** Sets a connected socket up for small writes that must not wait for each other. */
void prepareSocket(NativeSocket socket);

/** Bytes that the system took and that the other side has not acknowledged yet; 0 where the system
 *  does not tell. */
std::size_t bytesInSystem(NativeSocket socket);

/** Acknowledges at once what has arrived, and what arrives next: a printer that sends its reply in
 *  pieces and waits for the acknowledgement of each would otherwise pause longer than replyGap. */
void acknowledgeAtOnce(NativeSocket socket);

} // namespace q7
