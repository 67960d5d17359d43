#include "server.h"

#include "command_parser.h"

#include <algorithm>
#include <cerrno>
#include <cstdlib>
#include <deque>
#include <system_error>
#include <utility>
#include <vector>

#include <arpa/inet.h>
#include <fcntl.h>
#include <netinet/in.h>
#include <netinet/tcp.h>
#include <poll.h>
#include <sys/socket.h>
#include <termios.h>
#include <unistd.h>

namespace virtual_printer
{
namespace
{

using std::chrono::milliseconds;

[[noreturn]] void fail(const char* what)
{
    throw std::system_error(errno, std::generic_category(), what);
}

int checked(int result, const char* what)
{
    if (result < 0) {
        fail(what);
    }
    return result;
}

void setNonBlocking(int fd)
{
    checked(fcntl(fd, F_SETFL, O_NONBLOCK), "fcntl");
}

/** While nobody has the serial device open, poll(2) reports a hang-up at once and for ever. */
constexpr milliseconds serialLookPeriod{10};

} // namespace

struct Server::Connection {
    struct Reply {
        Clock::time_point due;
        std::string bytes;
    };

    Connection(int descriptor, bool serialLine) : fd(descriptor), serial(serialLine) {}

    int fd;
    bool serial;
    std::unique_ptr<Job> job;
    std::unique_ptr<CommandParser> parser;
    std::uint64_t received = 0;
    int replies = 0;
    std::deque<Reply> outgoing = {};
    Clock::time_point nextRead = Clock::now();
    Clock::time_point nextUnasked = Clock::time_point::max();
    bool gone = false;
};

Server::Server(const ServerSettings& settings, JobMaker maker)
    : m_maker(std::move(maker)),
      m_model(settings.model),
      m_state(settings.state),
      m_behaviour(settings.behaviour)
{
    int ends[2];
    checked(pipe2(ends, O_CLOEXEC | O_NONBLOCK), "pipe");
    m_wakeRead = ends[0];
    m_wakeWrite = ends[1];
    if (settings.tcp) {
        listenOnTcp(settings);
    }
    if (settings.serial) {
        openSerial(settings.serialLink);
    }
}

Server::~Server()
{
    for (Connection& connection : m_connections) {
        connection.gone = true;
        end(connection);
    }
    for (const int fd : {m_listener, m_wakeRead, m_wakeWrite}) {
        if (fd >= 0) {
            close(fd);
        }
    }
    if (!m_serialLink.empty()) {
        unlink(m_serialLink.c_str());
    }
}

void Server::listenOnTcp(const ServerSettings& settings)
{
    m_listener = checked(socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0), "socket");
    const int on = 1;
    setsockopt(m_listener, SOL_SOCKET, SO_REUSEADDR, &on, sizeof on);
    if (settings.behaviour.readBytesPerSecond > 0 ||
        settings.behaviour.readBytesAtMost < UINT64_MAX) {
        // The sender has to feel the slow reader, so the system may hold back little for it.
        const int bufferBytes = 4096;
        setsockopt(m_listener, SOL_SOCKET, SO_RCVBUF, &bufferBytes, sizeof bufferBytes);
        // Nor may the sender's system: its buffer grows with the segments.
        const int ethernetSegmentBytes = 1460;
        setsockopt(m_listener, IPPROTO_TCP, TCP_MAXSEG, &ethernetSegmentBytes,
                   sizeof ethernetSegmentBytes);
    }
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_port = htons(settings.port);
    if (inet_pton(AF_INET, settings.address.c_str(), &address.sin_addr) != 1) {
        errno = EINVAL;
        fail("address");
    }
    socklen_t size = sizeof address;
    auto* generic = reinterpret_cast<sockaddr*>(&address);
    checked(bind(m_listener, generic, size), "bind");
    checked(listen(m_listener, 16), "listen");
    checked(getsockname(m_listener, generic, &size), "getsockname");
    m_port = ntohs(address.sin_port);
    setNonBlocking(m_listener);
}

void Server::openSerial(const std::string& link)
{
    const int master = checked(posix_openpt(O_RDWR | O_NOCTTY | O_CLOEXEC), "posix_openpt");
    m_connections.emplace_back(master, true);
    checked(grantpt(master), "grantpt");
    checked(unlockpt(master), "unlockpt");
    char path[128];
    if (ptsname_r(master, path, sizeof path) != 0) {
        fail("ptsname");
    }
    m_serialPath = path;
    // Raw, as a serial port is: the line discipline must neither echo nor translate. The settings
    // stay with the pair after the device is closed here; kept open, it would hide the hang-up
    // that ends a job.
    const int device = checked(open(path, O_RDWR | O_NOCTTY | O_CLOEXEC), path);
    termios raw{};
    tcgetattr(device, &raw);
    cfmakeraw(&raw);
    tcsetattr(device, TCSANOW, &raw);
    close(device);
    setNonBlocking(master);
    if (!link.empty()) {
        unlink(link.c_str());
        checked(symlink(path, link.c_str()), link.c_str());
        m_serialLink = link;
    }
}

void Server::stop()
{
    const char byte = 0;
    if (write(m_wakeWrite, &byte, 1) < 0) {
        return; // the pipe is full: run() is being woken already
    }
}

void Server::setState(const State& state)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_state = state;
}

void Server::setBehaviour(const Behaviour& behaviour)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_behaviour = behaviour;
}

Behaviour Server::behaviour() const
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    return m_behaviour;
}

State Server::state() const
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    return m_state;
}

void Server::run(int jobs)
{
    std::vector<pollfd> watched;
    while (jobs == 0 || m_jobsEnded < jobs) {
        Clock::time_point wake = Clock::time_point::max();
        const Clock::time_point now = Clock::now();
        watched.assign({{m_wakeRead, POLLIN, 0}, {m_listener, POLLIN, 0}});
        for (const Connection& connection : m_connections) {
            // The serial line with nobody on it is looked at by the clock.
            const bool readable = connection.nextRead <= now;
            watched.push_back({readable ? connection.fd : -1, POLLIN, 0});
            wake = std::min({wake, connection.nextUnasked,
                             readable ? Clock::time_point::max() : connection.nextRead,
                             connection.outgoing.empty() ? Clock::time_point::max()
                                                         : connection.outgoing.front().due});
        }
        int timeoutMs = -1;
        if (wake != Clock::time_point::max()) {
            const auto wait = std::chrono::ceil<milliseconds>(wake - Clock::now()).count();
            timeoutMs = static_cast<int>(std::clamp<long long>(wait, 0, 60'000));
        }
        if (poll(watched.data(), watched.size(), timeoutMs) < 0 && errno != EINTR) {
            fail("poll");
        }
        if (watched[0].revents != 0) {
            char drain[16];
            while (read(m_wakeRead, drain, sizeof drain) > 0) {
            }
            return;
        }
        auto entry = watched.begin() + 2;
        for (auto connection = m_connections.begin(); connection != m_connections.end(); ++entry) {
            if (entry->revents != 0 && readFrom(*connection) == Reading::Ended) {
                end(*connection);
            }
            sendDue(*connection);
            sendUnasked(*connection);
            if (connection->gone) {
                connection = m_connections.erase(connection);
            } else {
                ++connection;
            }
        }
        if (watched[1].revents != 0) {
            acceptConnection();
        }
    }
}

void Server::acceptConnection()
{
    const int fd = accept4(m_listener, nullptr, nullptr, SOCK_CLOEXEC | SOCK_NONBLOCK);
    if (fd < 0) {
        return; // it went away before it was accepted
    }
    const int on = 1;
    setsockopt(fd, IPPROTO_TCP, TCP_NODELAY, &on, sizeof on);
    m_connections.emplace_back(fd, false);
    begin(m_connections.back());
}

void Server::begin(Connection& connection)
{
    connection.job = m_maker(++m_jobsBegun);
    connection.parser = std::make_unique<CommandParser>(
        [this, &connection](const Command& command) {
            connection.job->command(command);
            answer(connection, command);
        },
        m_model.tildeQueries ? CommandParser::TildeQueries::Yes : CommandParser::TildeQueries::No);
    connection.received = 0;
    connection.replies = 0;
    awaitUnasked(connection);
}

void Server::awaitUnasked(Connection& connection)
{
    const int periodMs = behaviour().unaskedStatusMs;
    connection.nextUnasked =
        periodMs > 0 ? Clock::now() + milliseconds(periodMs) : Clock::time_point::max();
}

void Server::end(Connection& connection)
{
    if (!connection.serial || connection.gone) {
        // Drawing may take its time; whoever waits for the printer to hang up must not.
        connection.gone = true;
        close(std::exchange(connection.fd, -1));
    }
    if (connection.job) {
        connection.parser->finish();
        connection.job->ended();
        connection.job.reset();
        connection.parser.reset();
        ++m_jobsEnded;
    }
    connection.outgoing.clear();
    connection.nextUnasked = Clock::time_point::max();
}

Server::Reading Server::readFrom(Connection& connection)
{
    const Behaviour manner = behaviour();
    char buffer[65536];
    std::size_t wanted = sizeof buffer;
    const bool slow = manner.readBytesPerSecond > 0 && connection.received < manner.slowBytes;
    if (slow) {
        constexpr int readsPerSecond = 50;
        wanted = static_cast<std::size_t>(
            std::clamp(manner.readBytesPerSecond / readsPerSecond, 1, 65536));
    }
    const auto stopAt = [&](std::uint64_t bytes) {
        const std::uint64_t left = bytes - std::min(bytes, connection.received);
        wanted = static_cast<std::size_t>(std::min<std::uint64_t>(wanted, left));
    };
    stopAt(manner.readBytesAtMost);
    if (wanted == 0) {
        connection.nextRead = Clock::time_point::max();
        return Reading::Open;
    }
    const bool exits = manner.exit != Behaviour::Exit::Stay;
    if (exits) {
        stopAt(manner.exitAfterBytes);
    }

    const ssize_t count = wanted > 0 ? read(connection.fd, buffer, wanted) : 0;
    if (count < 0 && (errno == EAGAIN || errno == EINTR)) {
        return Reading::Open;
    }
    if (count <= 0 && wanted > 0) {
        if (connection.serial) {
            connection.nextRead = Clock::now() + serialLookPeriod;
        }
        return Reading::Ended;
    }
    if (!connection.job) {
        begin(connection);
    }
    const auto size = static_cast<std::size_t>(count);
    if (slow) {
        connection.nextRead =
            Clock::now() + std::chrono::microseconds(
                               size * 1'000'000 / static_cast<unsigned>(manner.readBytesPerSecond));
    }
    connection.received += size;
    const std::string_view bytes(buffer, size);
    connection.job->received(bytes);
    connection.parser->feed(bytes);
    if (connection.nextUnasked == Clock::time_point::max()) {
        awaitUnasked(connection); // the behaviour may have changed
    }

    if (exits && connection.received >= manner.exitAfterBytes) {
        if (manner.exit == Behaviour::Exit::Reset) {
            const linger atOnce{1, 0};
            setsockopt(connection.fd, SOL_SOCKET, SO_LINGER, &atOnce, sizeof atOnce);
        } else {
            // Ends the connection also where unread bytes would have the close reset it.
            shutdown(connection.fd, SHUT_WR);
        }
        connection.gone = true;
        return Reading::Ended;
    }
    return Reading::Open;
}

void Server::answer(Connection& connection, const Command& command)
{
    const Behaviour manner = behaviour();
    const auto fixed = manner.answers.find(command.bytes);
    const std::string reply =
        fixed != manner.answers.end() ? fixed->second : replyTo(command, m_model, state());
    // A printer keeps few answers: who asks on and on without reading loses the later ones.
    constexpr std::size_t mostWaiting = 4096;
    if (reply.empty() || connection.outgoing.size() >= mostWaiting) {
        return;
    }
    const bool prompt = connection.replies++ < manner.promptReplies;
    if (prompt) {
        connection.outgoing.push_back({Clock::now(), reply});
    } else if (!manner.silent) {
        Clock::time_point due = Clock::now() + milliseconds(manner.lateMs);
        if (manner.byteGapMs == 0) {
            connection.outgoing.push_back({due, reply});
            return;
        }
        for (const char byte : reply) {
            connection.outgoing.push_back({due, std::string(1, byte)});
            due += milliseconds(manner.byteGapMs);
        }
    }
}

void Server::sendDue(Connection& connection)
{
    const Clock::time_point now = Clock::now();
    while (!connection.gone && !connection.outgoing.empty() &&
           connection.outgoing.front().due <= now) {
        const std::string& bytes = connection.outgoing.front().bytes;
        // An answer that finds no room is lost, as it is on a serial line nobody listens to.
        const ssize_t count = connection.serial
                                  ? write(connection.fd, bytes.data(), bytes.size())
                                  : send(connection.fd, bytes.data(), bytes.size(), MSG_NOSIGNAL);
        if (count > 0) {
            connection.job->sent({bytes.data(), static_cast<std::size_t>(count)});
        }
        connection.outgoing.pop_front();
    }
}

void Server::sendUnasked(Connection& connection)
{
    const Clock::time_point now = Clock::now();
    if (connection.nextUnasked <= now) {
        connection.outgoing.push_back({now, automaticStatus(state())});
        sendDue(connection);
        connection.nextUnasked = now + milliseconds(std::max(1, behaviour().unaskedStatusMs));
    }
}

} // namespace virtual_printer
