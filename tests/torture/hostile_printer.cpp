#include "hostile_printer.h"

#include <algorithm>
#include <fcntl.h>
#include <netinet/in.h>
#include <poll.h>
#include <stdexcept>
#include <sys/socket.h>
#include <termios.h>
#include <unistd.h>

namespace q7test
{
namespace
{

constexpr std::chrono::seconds patience(20);

std::string garbage()
{
    std::string bytes(4096, '\0');
    unsigned state = 12345;
    for (char& byte : bytes)
        byte = static_cast<char>((state = state * 1103515245U + 12345U) >> 16);
    return bytes;
}

void makeRaw(int terminal)
{
    termios settings = {};
    ::tcgetattr(terminal, &settings);
    ::cfmakeraw(&settings);
    ::tcsetattr(terminal, TCSANOW, &settings);
}

} // namespace

HostilePrinter::HostilePrinter(Line line, Keep keep, Fault fault, std::size_t atByte)
    : m_line(line), m_keep(keep), m_fault(fault), m_atByte(atByte)
{
    listenAnew();
    bool isReady = ::pipe2(m_wake, O_CLOEXEC) == 0;
    if (line == Line::Tcp) {
        m_listener = ::socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0);
        sockaddr_in address = {};
        address.sin_family = AF_INET;
        address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
        socklen_t size = sizeof address;
        auto* const general = reinterpret_cast<sockaddr*>(&address);
        isReady = isReady && ::bind(m_listener, general, size) == 0 &&
                  ::listen(m_listener, 4) == 0 && ::getsockname(m_listener, general, &size) == 0;
        m_port = ntohs(address.sin_port);
    } else {
        m_connection = ::posix_openpt(O_RDWR | O_NOCTTY | O_CLOEXEC | O_NONBLOCK);
        char name[64] = {};
        isReady = isReady && ::grantpt(m_connection) == 0 && ::unlockpt(m_connection) == 0 &&
                  ::ptsname_r(m_connection, name, sizeof name) == 0;
        m_terminal = name;
        makeRaw(m_connection);
    }
    if (!isReady)
        throw std::runtime_error("no printer to be had");
    m_thread = std::thread([this] { serve(); });
}

HostilePrinter::~HostilePrinter()
{
    ::close(m_wake[1]);
    m_thread.join();
    hangUp();
    if (m_listener >= 0)
        ::close(m_listener);
    ::close(m_wake[0]);
}

void HostilePrinter::setModel(const std::string& model)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_model = model;
}

void HostilePrinter::answerWith(const std::string& reply)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_reply = reply;
}

bool HostilePrinter::waitForFault()
{
    std::unique_lock<std::mutex> lock(m_mutex);
    return m_changed.wait_for(lock, patience, [this] { return m_fault == Fault::None; });
}

template <typename Condition> std::string HostilePrinter::bytesOnce(Condition condition)
{
    std::unique_lock<std::mutex> lock(m_mutex);
    m_changed.wait_for(lock, patience, condition);
    return m_bytes;
}

std::string HostilePrinter::waitForText(const std::string& text, std::size_t from)
{
    return bytesOnce([&] { return m_bytes.find(text, from) != std::string::npos; });
}

std::string HostilePrinter::waitForBytes(std::size_t count)
{
    return bytesOnce([=] { return m_bytes.size() >= count; });
}

std::string HostilePrinter::waitForClose()
{
    return bytesOnce([this] { return m_received > 0 && m_connection < 0; });
}

void HostilePrinter::serve()
{
    for (;;) {
        const bool isDeaf = m_under == Fault::Stalled;
        const bool talksOn = m_under == Fault::Endless;
        pollfd entries[] = {
            {m_wake[0], POLLIN, 0},
            {m_connection < 0 ? m_listener : -1, POLLIN, 0},
            {m_connection, static_cast<short>((isDeaf ? 0 : POLLIN) | (talksOn ? POLLOUT : 0)), 0}};
        ::poll(entries, 3, -1);
        if (entries[0].revents != 0)
            return;
        if ((entries[2].revents & POLLOUT) != 0 && talksOn)
            ::usleep(1000); // some megabytes a second: links are no faster, and others want to run
        const std::lock_guard<std::mutex> lock(m_mutex);
        if (entries[1].revents != 0)
            accept();
        else if ((entries[2].revents & POLLOUT) != 0 && talksOn)
            say(garbage());
        if ((entries[2].revents & ~POLLOUT) != 0 && !receive())
            hangUp();
        m_changed.notify_all();
    }
}

void HostilePrinter::accept()
{
    m_connection = ::accept4(m_listener, nullptr, nullptr, SOCK_CLOEXEC | SOCK_NONBLOCK);
    m_received = 0;
    m_bytes.clear();
    m_under = Fault::None;
    listenAnew();
    if (m_fault != Fault::None && m_atByte == 0)
        misbehave();
}

void HostilePrinter::listenAnew()
{
    m_parser.emplace([this](const virtual_printer::Command& command) {
        const std::string usual = replyTo(command, *virtual_printer::findModel(m_model), {});
        if (!usual.empty())
            say(m_reply.empty() ? usual : m_reply);
    });
}

// Returns false when the far end is gone.
bool HostilePrinter::receive()
{
    char buffer[65536];
    const std::size_t wanted =
        m_fault == Fault::None ? sizeof buffer : std::min(sizeof buffer, m_atByte - m_received);
    const ssize_t count = ::read(m_connection, buffer, wanted);
    if (count < 0 && errno == EIO && m_line == Line::Terminal) {
        ::usleep(1000); // nobody has it open: the system reports it for ever
        return true;
    }
    if (count <= 0)
        return count < 0 && (errno == EAGAIN || errno == EINTR);
    const std::string_view bytes(buffer, static_cast<std::size_t>(count));
    m_received += bytes.size();
    if (m_keep == Keep::Bytes)
        m_bytes += bytes;
    m_parser->feed(bytes);
    if (m_fault != Fault::None && m_received == m_atByte)
        misbehave();
    return true;
}

void HostilePrinter::misbehave()
{
    m_under = m_fault;
    m_fault = Fault::None;
    const linger atOnce = {1, 0};
    switch (m_under) {
    case Fault::Reset:
        ::setsockopt(m_connection, SOL_SOCKET, SO_LINGER, &atOnce, sizeof atOnce);
        hangUp();
        break;
    case Fault::Closed:
        ::shutdown(m_connection, SHUT_WR);
        hangUp();
        break;
    case Fault::HalfClosed:
        ::shutdown(m_connection, SHUT_WR);
        break;
    case Fault::Garbage:
        say(garbage());
        break;
    default:
        break;
    }
}

// What finds no room is lost.
void HostilePrinter::say(const std::string& bytes) const
{
    if (m_connection >= 0)
        static_cast<void>(!(m_line == Line::Tcp
                                ? ::send(m_connection, bytes.data(), bytes.size(), MSG_NOSIGNAL)
                                : ::write(m_connection, bytes.data(), bytes.size())));
}

void HostilePrinter::hangUp()
{
    if (m_connection >= 0)
        ::close(m_connection);
    m_connection = -1;
}

} // namespace q7test
