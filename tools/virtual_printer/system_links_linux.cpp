#include "system_links.h"

#include <asio/posix/stream_descriptor.hpp>

#include <cerrno>
#include <cstdlib>

#include <fcntl.h>
#include <netinet/tcp.h>
#include <termios.h>
#include <unistd.h>

namespace virtual_printer
{
namespace
{

using Terminal = asio::posix::stream_descriptor;

int checked(int result, const std::string& what)
{
    if (result < 0) {
        throw std::system_error(errno, std::generic_category(), what);
    }
    return result;
}

class TerminalLine : public LineOver<Terminal>
{
public:
    TerminalLine(Terminal master, std::string link)
        : LineOver(std::move(master)), m_link(std::move(link))
    {
    }
    ~TerminalLine() override
    {
        if (!m_link.empty()) {
            unlink(m_link.c_str());
        }
    }
    bool staysOpen() const override { return true; }

private:
    std::string m_link;
};

/** Raw, as a serial port is: the line discipline must neither echo nor translate. The settings stay
 *  with the pair after the device is closed here; kept open, it would hide the hang-up that ends a
 *  job. */
void makeRaw(const std::string& path)
{
    const int device = checked(open(path.c_str(), O_RDWR | O_NOCTTY | O_CLOEXEC), path);
    termios raw{};
    tcgetattr(device, &raw);
    cfmakeraw(&raw);
    tcsetattr(device, TCSANOW, &raw);
    close(device);
}

} // namespace

void claimPort(asio::ip::tcp::acceptor::native_handle_type listener)
{
    const int on = 1;
    checked(setsockopt(listener, SOL_SOCKET, SO_REUSEADDR, &on, sizeof on), "setsockopt");
}

void keepBuffersSmall(asio::ip::tcp::acceptor& acceptor)
{
    acceptor.set_option(asio::socket_base::receive_buffer_size(4096));
    // Nor may the sender's system hold back much: its buffer grows with the segments.
    const int ethernetSegmentBytes = 1460;
    setsockopt(acceptor.native_handle(), IPPROTO_TCP, TCP_MAXSEG, &ethernetSegmentBytes,
               sizeof ethernetSegmentBytes);
}

SerialLine openSerialLine(asio::io_context& context, const std::string& link)
{
    Terminal master(context, checked(posix_openpt(O_RDWR | O_NOCTTY | O_CLOEXEC), "posix_openpt"));
    checked(grantpt(master.native_handle()), "grantpt");
    checked(unlockpt(master.native_handle()), "unlockpt");
    char path[128];
    checked(-ptsname_r(master.native_handle(), path, sizeof path), "ptsname");
    makeRaw(path);
    if (!link.empty()) {
        unlink(link.c_str());
        checked(symlink(path, link.c_str()), link);
    }
    return {std::make_unique<TerminalLine>(std::move(master), link), path};
}

} // namespace virtual_printer
