// A TCP connection to a network printer.
#pragma once

#include "deadline.h"
#include "endpoint.h"

#include <asio/io_context.hpp>

#include <memory>
#include <string>

namespace q7
{

struct TcpOpened {
    std::unique_ptr<Endpoint> endpoint; // null when the connection failed
    int error;                          // of a failure: 0 refused, 2 host not found, ...
    const char* errorText;
};

/** Looks the host up and tries its addresses in turn until the deadline. */
TcpOpened openTcp(asio::io_context& context, const std::string& host, unsigned short port,
                  Deadline deadline);

} // namespace q7
