#include "fake_printer.h"

#include <algorithm>
#include <arpa/inet.h>
#include <cerrno>
#include <cstdlib>
#include <deque>
#include <fcntl.h>
#include <linux/tcp.h>
#include <poll.h>
#include <stdexcept>
#include <sys/socket.h>
#include <termios.h>
#include <unistd.h>

namespace q7test
{
namespace
{

using std::chrono::milliseconds;

int checked(int result, const char* what)
{
    if (result < 0)
        throw std::runtime_error(std::string(what) + ": " + std::to_string(errno));
    return result;
}

void setOption(int socket, int level, int option, int value)
{
    if (value > 0)
        checked(setsockopt(socket, level, option, &value, sizeof value), "setsockopt");
}

std::size_t segmentsOf(int socket)
{
    tcp_info info = {};
    socklen_t size = sizeof info;
    return getsockopt(socket, IPPROTO_TCP, TCP_INFO, &info, &size) == 0 ? info.tcpi_data_segs_in
                                                                        : 0;
}

sockaddr_in loopback(int port)
{
    sockaddr_in address = {};
    address.sin_family = AF_INET;
    address.sin_port = htons(static_cast<std::uint16_t>(port));
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    return address;
}

int boundSocket()
{
    const int socket = checked(::socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0), "socket");
    const sockaddr_in address = loopback(0);
    checked(bind(socket, reinterpret_cast<const sockaddr*>(&address), sizeof address), "bind");
    return socket;
}

int portOf(int socket)
{
    sockaddr_in address = {};
    socklen_t size = sizeof address;
    checked(getsockname(socket, reinterpret_cast<sockaddr*>(&address), &size), "getsockname");
    return ntohs(address.sin_port);
}

int listeningSocket(const PrinterScript& script)
{
    const int socket = boundSocket();
    setOption(socket, SOL_SOCKET, SO_RCVBUF, script.receiveBufferBytes);
    setOption(socket, IPPROTO_TCP, TCP_MAXSEG, script.segmentBytes);
    checked(listen(socket, 16), "listen");
    return socket;
}

int rawTerminal()
{
    const int master = checked(posix_openpt(O_RDWR | O_NOCTTY | O_CLOEXEC), "posix_openpt");
    checked(grantpt(master), "grantpt");
    checked(unlockpt(master), "unlockpt");
    termios settings = {};
    checked(tcgetattr(master, &settings), "tcgetattr");
    cfmakeraw(&settings);
    checked(tcsetattr(master, TCSANOW, &settings), "tcsetattr");
    return master;
}

} // namespace

struct FakePrinter::Connection {
    struct Reply {
        Clock::time_point due;
        std::string bytes;
    };

    int descriptor;
    std::size_t index;
    Clock::time_point firstByte = {};
    Clock::time_point nextUnasked = {};
    std::deque<Reply> replies = {};
    std::size_t searched = 0; // bytes already looked through for queries
};

std::chrono::duration<double, std::milli> Received::duration(std::size_t fromByte) const
{
    std::size_t before = 0;
    for (const Packet& packet : packets) {
        before += packet.size;
        if (before > fromByte)
            return packets.back().time - packet.time;
    }
    return {};
}

FakePrinter::FakePrinter(PrinterScript script, int listener, int terminal)
    : m_script(std::move(script)), m_listener(listener), m_terminal(terminal)
{
    checked(pipe2(m_wake, O_CLOEXEC | O_NONBLOCK), "pipe");
    m_thread = std::thread([this] { run(); });
}

FakePrinter::~FakePrinter()
{
    for (const int descriptor : {m_listener, m_wake[0], m_wake[1]})
        if (descriptor >= 0)
            close(descriptor);
}

void FakePrinter::stop()
{
    {
        const std::lock_guard lock(m_mutex);
        m_stops = true;
    }
    static_cast<void>(!write(m_wake[1], "", 1));
    m_thread.join();
}

void FakePrinter::change(const std::function<void(PrinterScript&)>& edit)
{
    const std::lock_guard lock(m_mutex);
    edit(m_script);
    static_cast<void>(!write(m_wake[1], "", 1));
}

void FakePrinter::vanish()
{
    std::unique_lock lock(m_mutex);
    m_vanishes = true;
    static_cast<void>(!write(m_wake[1], "", 1));
    m_changed.wait_for(lock, generousTime, [this] { return !m_vanishes; });
}

PrinterScript FakePrinter::script() const
{
    const std::lock_guard lock(m_mutex);
    return m_script;
}

std::vector<Received> FakePrinter::received() const
{
    const std::lock_guard lock(m_mutex);
    return m_received;
}

std::string FakePrinter::bytes() const
{
    const std::lock_guard lock(m_mutex);
    return m_received.empty() ? std::string() : m_received.back().bytes;
}

bool FakePrinter::waitUntil(const std::function<bool(const std::vector<Received>&)>& condition,
                            milliseconds limit) const
{
    std::unique_lock lock(m_mutex);
    return m_changed.wait_for(lock, limit, [&] { return condition(m_received); });
}

std::string FakePrinter::waitForBytes(std::size_t count, milliseconds limit) const
{
    waitUntil([=](const auto& all) { return !all.empty() && all.back().bytes.size() >= count; },
              limit);
    return bytes();
}

std::string FakePrinter::waitForClose(milliseconds limit) const
{
    const bool isClosed =
        waitUntil([](const auto& all) { return !all.empty() && all.back().isClosed; }, limit);
    return isClosed ? bytes() : std::string();
}

void FakePrinter::run()
{
    constexpr int tickMs = 2; // while something is due by the clock
    std::deque<Connection> connections;
    const auto add = [&](int descriptor) {
        const std::lock_guard lock(m_mutex);
        connections.push_back({descriptor, m_received.size()});
        m_received.emplace_back();
    };
    if (m_terminal >= 0)
        add(m_terminal);
    while (true) {
        bool isTimed = m_terminal >= 0;
        std::vector<pollfd> waits = {{m_wake[0], POLLIN, 0}, {m_listener, POLLIN, 0}};
        const PrinterScript now = script();
        for (const Connection& connection : connections) {
            const bool isPaced =
                now.bytesPerSecond > 0 || now.readsAtMost != std::string::npos || m_terminal >= 0;
            isTimed |= isPaced || now.unaskedEveryMs > 0 || !connection.replies.empty();
            waits.push_back({isPaced ? -1 : connection.descriptor, POLLIN, 0});
        }
        poll(waits.data(), waits.size(), isTimed ? tickMs : -1);

        char wakes[64];
        static_cast<void>(!read(m_wake[0], wakes, sizeof wakes));
        bool stops = false;
        bool vanishes = false;
        {
            const std::lock_guard lock(m_mutex);
            stops = m_stops;
            vanishes = m_vanishes;
        }
        if (stops || vanishes) {
            for (Connection& connection : connections)
                end(connection, PrinterScript::End::Resets);
            const std::lock_guard lock(m_mutex);
            m_vanishes = false;
            m_changed.notify_all();
        }
        if (stops)
            return;
        if ((waits[1].revents & POLLIN) != 0)
            add(checked(accept4(m_listener, nullptr, nullptr, SOCK_CLOEXEC), "accept"));
        for (Connection& connection : connections)
            if (connection.descriptor >= 0)
                serve(connection, script());
        connections.erase(std::remove_if(connections.begin(), connections.end(),
                                         [](const Connection& c) { return c.descriptor < 0; }),
                          connections.end());
    }
}

void FakePrinter::serve(Connection& connection, const PrinterScript& script)
{
    std::size_t taken = 0;
    {
        const std::lock_guard lock(m_mutex);
        taken = m_received[connection.index].bytes.size();
    }
    std::size_t limit = std::max(script.readsAtMost, taken);
    if (script.end != PrinterScript::End::Stays)
        limit = std::min(limit, script.endsAfter);
    if (script.bytesPerSecond > 0 && taken > 0 && taken < script.slowBytes) {
        const std::chrono::duration<double> passed = Clock::now() - connection.firstByte;
        limit = std::min(limit, static_cast<std::size_t>(passed.count() * script.bytesPerSecond));
    }
    if (limit > taken)
        take(connection, script, limit - taken);

    const Clock::time_point now = Clock::now();
    const auto reply = [&](const std::string& bytes) {
        if (connection.descriptor >= 0)
            static_cast<void>(!(m_terminal >= 0
                                    ? write(connection.descriptor, bytes.data(), bytes.size())
                                    : send(connection.descriptor, bytes.data(), bytes.size(),
                                           MSG_NOSIGNAL | MSG_DONTWAIT)));
    };
    while (!connection.replies.empty() && connection.replies.front().due <= now) {
        reply(connection.replies.front().bytes);
        connection.replies.pop_front();
        const std::lock_guard lock(m_mutex);
        ++m_received[connection.index].replies;
        m_changed.notify_all();
    }
    if (script.unaskedEveryMs > 0 && connection.firstByte != Clock::time_point() &&
        now >= connection.nextUnasked) {
        reply(script.unasked);
        connection.nextUnasked = now + milliseconds(script.unaskedEveryMs);
    }
}

// Reads what is there, at most `limit` bytes, and queues the replies to the queries in it.
void FakePrinter::take(Connection& connection, const PrinterScript& script, std::size_t limit)
{
    pollfd ready = {connection.descriptor, POLLIN, 0};
    if (poll(&ready, 1, 0) <= 0)
        return;
    char buffer[65536];
    const ssize_t count = read(connection.descriptor, buffer, std::min(limit, sizeof buffer));
    if (count <= 0) {
        // A terminal stays: its port was closed, or not opened yet.
        const std::lock_guard lock(m_mutex);
        Received& record = m_received[connection.index];
        record.isClosed = m_terminal < 0 || !record.bytes.empty();
        m_changed.notify_all();
        if (m_terminal < 0) {
            close(connection.descriptor);
            connection.descriptor = -1;
        }
        return;
    }
    const Clock::time_point now = Clock::now();
    {
        const std::lock_guard lock(m_mutex);
        if (m_received[connection.index].isClosed) { // a terminal whose port was opened again
            connection = {connection.descriptor, m_received.size()};
            m_received.emplace_back();
        }
    }
    if (connection.firstByte == Clock::time_point())
        connection.firstByte = connection.nextUnasked = now;

    std::map<std::string, std::string> answers = script.answers;
    if (script.model == "TESMO")
        answers.emplace("~HI", "\x02TESMO,V1.15,8,8192KB\x03\r\n");
    else
        answers.emplace("\x1D\x49\x43", '_' + script.model + '\0');

    std::size_t total = 0;
    {
        const std::lock_guard lock(m_mutex);
        Received& record = m_received[connection.index];
        record.bytes.append(buffer, static_cast<std::size_t>(count));
        record.packets.push_back({now, static_cast<std::size_t>(count)});
        record.segments = segmentsOf(connection.descriptor);
        total = record.bytes.size();
        for (; connection.searched < total && !script.isSilent; ++connection.searched)
            for (const auto& [query, answer] : answers) {
                const std::size_t end = connection.searched + 1;
                if (end < query.size() ||
                    record.bytes.compare(end - query.size(), query.size(), query) != 0)
                    continue;
                Clock::time_point due = now + milliseconds(script.replyDelayMs);
                const std::size_t piece = script.replyByteGapMs > 0 ? 1 : answer.size();
                for (std::size_t at = 0; at < answer.size(); at += piece) {
                    connection.replies.push_back({due, answer.substr(at, piece)});
                    due += milliseconds(script.replyByteGapMs);
                }
            }
        connection.searched = total;
        m_changed.notify_all();
    }
    if (script.end != PrinterScript::End::Stays && total >= script.endsAfter)
        end(connection, script.end);
}

void FakePrinter::end(Connection& connection, PrinterScript::End how)
{
    if (connection.descriptor < 0)
        return;
    if (how == PrinterScript::End::Resets && m_terminal < 0) {
        const linger atOnce = {1, 0};
        setsockopt(connection.descriptor, SOL_SOCKET, SO_LINGER, &atOnce, sizeof atOnce);
    } else {
        // First the end of the connection, then a reset for what arrives behind it: the order in
        // which the sender's next write is a broken pipe.
        shutdown(connection.descriptor, SHUT_WR);
    }
    close(connection.descriptor);
    connection.descriptor = -1;
    const std::lock_guard lock(m_mutex);
    m_received[connection.index].isClosed = true;
    m_changed.notify_all();
}

TcpPrinter::TcpPrinter(const PrinterScript& script) : TcpPrinter(script, listeningSocket(script)) {}

TcpPrinter::TcpPrinter(const PrinterScript& script, int listener)
    : FakePrinter(script, listener, -1), m_port(portOf(listener))
{
}

PtyPrinter::PtyPrinter(const PrinterScript& script) : PtyPrinter(script, rawTerminal()) {}

PtyPrinter::PtyPrinter(const PrinterScript& script, int terminal)
    : FakePrinter(script, -1, terminal)
{
    char name[64] = {};
    ptsname_r(terminal, name, sizeof name);
    m_device = name;
}

DeafPort::DeafPort() : m_sockets{boundSocket()}, m_port(portOf(m_sockets.front()))
{
    checked(listen(m_sockets.front(), 0), "listen");
    // Fill the queue of connections that nobody accepts.
    const sockaddr_in address = loopback(m_port);
    for (int i = 0; i < 4; ++i) {
        m_sockets.push_back(socket(AF_INET, SOCK_STREAM | SOCK_NONBLOCK | SOCK_CLOEXEC, 0));
        connect(m_sockets.back(), reinterpret_cast<const sockaddr*>(&address), sizeof address);
    }
}

DeafPort::~DeafPort()
{
    for (const int socket : m_sockets)
        close(socket);
}

int refusingPort()
{
    const int socket = boundSocket();
    const int port = portOf(socket);
    close(socket);
    return port;
}

} // namespace q7test
