#include "deaf_port.h"

#include <gtest/gtest.h>
#include <netinet/in.h>
#include <sys/socket.h>

namespace q7test
{

int deafPort()
{
    sockaddr_in address = {};
    socklen_t size = sizeof address;
    auto* generic = reinterpret_cast<sockaddr*>(&address);
    address.sin_family = AF_INET;
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    const int listener = socket(AF_INET, SOCK_STREAM, 0);
    EXPECT_EQ(0, bind(listener, generic, size));
    EXPECT_EQ(0, listen(listener, 0));
    EXPECT_EQ(0, getsockname(listener, generic, &size));
    for (int client = 0; client < 4; ++client)
        connect(socket(AF_INET, SOCK_STREAM | SOCK_NONBLOCK, 0), generic, size);
    return ntohs(address.sin_port);
}

} // namespace q7test
