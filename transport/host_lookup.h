// Looking up a printer's host name within a time limit.
#pragma once

#include "deadline.h"

#include <asio/ip/address.hpp>

#include <string>
#include <vector>

namespace q7
{

struct HostLookup {
    std::vector<asio::ip::address> addresses; // in the system's order of preference
    bool timedOut;
};

/** Numeric addresses are answered at once. A name is looked up by the system's resolver on a thread
 *  of its own, which is left behind when the deadline passes first. */
HostLookup lookUpHost(const std::string& host, Deadline deadline);

} // namespace q7
