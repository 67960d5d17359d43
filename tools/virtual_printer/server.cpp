#include "server.h"

#include "command_parser.h"
#include "system_links.h"

#include <asio/signal_set.hpp>
#include <asio/steady_timer.hpp>

#include <algorithm>
#include <csignal>
#include <deque>
#include <list>
#include <random>
#include <utility>

namespace virtual_printer
{
namespace
{

using asio::ip::tcp;
using std::chrono::milliseconds;
using Clock = asio::steady_timer::clock_type;

/** While nobody has the serial device open, the system reports a hang-up at once and for ever. */
constexpr milliseconds serialLookPeriod{10};

const std::string& garbage()
{
    static const std::string bytes = [] {
        std::string arbitrary(4096, '\0');
        std::minstd_rand next(12345); // the same each time
        std::generate(arbitrary.begin(), arbitrary.end(),
                      [&next] { return static_cast<char>(next() >> 16); });
        return arbitrary;
    }();
    return bytes;
}

class TcpLine : public LineOver<tcp::socket>
{
public:
    explicit TcpLine(tcp::socket socket) : LineOver(std::move(socket))
    {
        std::error_code goneAlready;
        m_stream.set_option(tcp::no_delay(true), goneAlready);
    }
    void vanish(Ending how) override
    {
        std::error_code goneAlready;
        if (how == Ending::Reset) {
            m_stream.set_option(asio::socket_base::linger(true, 0), goneAlready);
        } else {
            // Ends the connection also where unread bytes would have the close reset it.
            m_stream.shutdown(tcp::socket::shutdown_send, goneAlready);
        }
        LineOver::vanish(how);
    }
    bool staysOpen() const override { return false; }
};

} // namespace

/** A line and the job that it carries. */
class Server::Connection : public std::enable_shared_from_this<Connection>
{
public:
    Connection(Server& server, asio::io_context& context, std::unique_ptr<Line> line)
        : m_server(server),
          m_line(std::move(line)),
          m_readTimer(context),
          m_replyTimer(context),
          m_unaskedTimer(context),
          m_showTimer(context),
          m_babbleTimer(context)
    {
    }

    void beginJob()
    {
        m_model = m_server.model();
        m_job = m_server.m_maker(++m_server.m_jobsBegun, m_model);
        m_parser = std::make_unique<CommandParser>(
            [this](const Command& command) {
                m_job->command(command);
                answer(command);
            },
            m_model.tildeQueries ? CommandParser::TildeQueries::Yes
                                 : CommandParser::TildeQueries::No);
        m_received = 0;
        m_replies = 0;
        m_hasFaulted = false;
        awaitUnasked();
    }

    void awaitBytes()
    {
        m_line->awaitReadable([self = shared_from_this()] { self->readAndGoOn(); });
    }

    /** The far end has left, or the printer ends. */
    void end()
    {
        if (!m_line->staysOpen()) {
            // Drawing may take its time; whoever waits for the printer to hang up must not.
            closeLine();
        }
        m_replyTimer.cancel();
        m_unaskedTimer.cancel();
        m_babbleTimer.cancel();
        m_unaskedAwaited = false;
        m_showTimer.cancel();
        m_showAwaited = false;
        m_outgoing.clear();
        if (m_job) {
            m_parser->finish();
            m_job->ended();
            m_job.reset();
            m_parser.reset();
            m_server.jobEnded();
        }
    }

    bool isGone() const { return m_gone; }

private:
    struct Reply {
        Clock::time_point due;
        std::string bytes;
    };
    enum class Reading { Open, Ended };

    template <typename Action> auto whileOpen(Action action)
    {
        return [self = shared_from_this(), action](std::error_code error) {
            if (!error && !self->m_gone) {
                action(*self);
            }
        };
    }

    void readAndGoOn()
    {
        if (m_gone) {
            return;
        }
        m_nextRead = Clock::time_point::min();
        const bool ended = read() == Reading::Ended;
        if (ended) {
            end();
        }
        if (m_gone) {
            return;
        }
        sendDue();
        if (ended) {
            m_nextRead = Clock::now() + serialLookPeriod;
        }
        if (m_nextRead == Clock::time_point::min()) {
            awaitBytes();
        } else if (m_nextRead != Clock::time_point::max()) {
            m_readTimer.expires_at(m_nextRead);
            m_readTimer.async_wait(whileOpen([](Connection& self) { self.awaitBytes(); }));
        }
    }

    Reading read()
    {
        const Behaviour manner = m_server.behaviour();
        char buffer[65536];
        std::size_t wanted = sizeof buffer;
        const bool slow = manner.readBytesPerSecond > 0 && m_received < manner.slowBytes;
        if (slow) {
            constexpr int readsPerSecond = 50;
            wanted = static_cast<std::size_t>(
                std::clamp(manner.readBytesPerSecond / readsPerSecond, 1, 65536));
        }
        const bool isToFault = manner.fault != Behaviour::Fault::None && !m_hasFaulted;
        if (isToFault) {
            wanted = static_cast<std::size_t>(std::min<std::uint64_t>(
                wanted, manner.faultAfterBytes - std::min(manner.faultAfterBytes, m_received)));
        }

        std::error_code error;
        const std::size_t size = wanted > 0 ? m_line->read(buffer, wanted, error) : 0;
        if (error == asio::error::would_block || error == asio::error::interrupted) {
            return Reading::Open;
        }
        if (error || (size == 0 && wanted > 0)) {
            return Reading::Ended;
        }
        if (!m_job) {
            beginJob();
        }
        if (slow) {
            m_nextRead = Clock::now() +
                         std::chrono::microseconds(
                             size * 1'000'000 / static_cast<unsigned>(manner.readBytesPerSecond));
        }
        m_received += size;
        const std::string_view bytes(buffer, size);
        m_job->received(bytes);
        m_parser->feed(bytes);
        awaitShow();
        if (!m_unaskedAwaited) {
            awaitUnasked(); // the behaviour may have changed
        }

        if (isToFault && m_received >= manner.faultAfterBytes) {
            sendDue(); // what was asked before
            return fault(manner.fault);
        }
        return Reading::Open;
    }

    Reading fault(Behaviour::Fault fault)
    {
        m_hasFaulted = true;
        switch (fault) {
        case Behaviour::Fault::HalfClose:
            m_line->vanish(Line::Ending::HalfClose);
            break;
        case Behaviour::Fault::Stall:
            m_nextRead = Clock::time_point::max();
            break;
        case Behaviour::Fault::Garbage:
            m_line->write(garbage());
            break;
        case Behaviour::Fault::Babble:
            babble();
            break;
        default:
            m_line->vanish(fault == Behaviour::Fault::Reset ? Line::Ending::Reset
                                                            : Line::Ending::Close);
            closeLine();
        }
        m_job->faulted();
        return m_gone ? Reading::Ended : Reading::Open;
    }

    // Some megabytes a second: links are no faster.
    void babble()
    {
        m_line->write(garbage());
        m_babbleTimer.expires_after(milliseconds(1));
        m_babbleTimer.async_wait(whileOpen([](Connection& self) { self.babble(); }));
    }

    void answer(const Command& command)
    {
        const Behaviour manner = m_server.behaviour();
        const auto fixed = manner.answers.find(command.bytes);
        std::string reply = fixed != manner.answers.end()
                                ? fixed->second
                                : replyTo(command, m_model, m_server.state());
        if (fixed == manner.answers.end() && !reply.empty() && !manner.anyAnswer.empty()) {
            reply = manner.anyAnswer;
        }
        // A printer keeps few answers: who asks on and on without reading loses the later ones.
        constexpr std::size_t mostWaiting = 4096;
        if (reply.empty() || m_outgoing.size() >= mostWaiting) {
            return;
        }
        const bool prompt = m_replies++ < manner.promptReplies;
        if (prompt) {
            m_outgoing.push_back({Clock::now(), reply});
        } else if (!manner.silent) {
            Clock::time_point due = Clock::now() + milliseconds(manner.lateMs);
            if (manner.byteGapMs == 0) {
                m_outgoing.push_back({due, reply});
                return;
            }
            for (const char byte : reply) {
                m_outgoing.push_back({due, std::string(1, byte)});
                due += milliseconds(manner.byteGapMs);
            }
        }
    }

    void sendDue()
    {
        const Clock::time_point now = Clock::now();
        while (!m_outgoing.empty() && m_outgoing.front().due <= now) {
            const std::string& bytes = m_outgoing.front().bytes;
            // An answer that finds no room is lost, as it is on a serial line nobody listens to.
            const std::size_t count = m_line->write(bytes);
            if (count > 0) {
                m_job->sent(std::string_view(bytes).substr(0, count));
            }
            m_outgoing.pop_front();
        }
        if (!m_outgoing.empty()) {
            m_replyTimer.expires_at(m_outgoing.front().due);
            m_replyTimer.async_wait(whileOpen([](Connection& self) { self.sendDue(); }));
        }
    }

    void awaitUnasked()
    {
        const int periodMs = m_server.behaviour().unaskedStatusMs;
        m_unaskedAwaited = periodMs > 0;
        if (m_unaskedAwaited) {
            m_unaskedTimer.expires_after(milliseconds(periodMs));
            m_unaskedTimer.async_wait(whileOpen([](Connection& self) {
                if (self.m_unaskedAwaited) {
                    self.m_outgoing.push_back(
                        {Clock::now(), automaticStatus(self.m_server.state())});
                    self.sendDue();
                    self.awaitUnasked();
                }
            }));
        }
    }

    void awaitShow()
    {
        if (!m_showAwaited) {
            m_showAwaited = true;
            m_showTimer.expires_after(Job::showPeriod);
            m_showTimer.async_wait(whileOpen([](Connection& self) {
                if (std::exchange(self.m_showAwaited, false)) {
                    self.m_job->show();
                }
            }));
        }
    }

    void closeLine()
    {
        m_gone = true;
        m_line->close();
        m_readTimer.cancel();
    }

    Server& m_server;
    std::unique_ptr<Line> m_line;
    Model m_model = {};
    std::unique_ptr<Job> m_job;
    std::unique_ptr<CommandParser> m_parser;
    std::uint64_t m_received = 0;
    int m_replies = 0;
    std::deque<Reply> m_outgoing;
    Clock::time_point m_nextRead = Clock::time_point::min();
    asio::steady_timer m_readTimer;
    asio::steady_timer m_replyTimer;
    asio::steady_timer m_unaskedTimer;
    asio::steady_timer m_showTimer;
    bool m_showAwaited = false;
    asio::steady_timer m_babbleTimer;
    bool m_unaskedAwaited = false;
    bool m_hasFaulted = false;
    bool m_gone = false;
};

struct Server::Links {
    asio::io_context context{1}; // one thread runs it
    tcp::acceptor acceptor{context};
    asio::signal_set signals{context};
    std::uint16_t port = 0;
    std::string serialPath;
    std::list<std::shared_ptr<Connection>> connections;

    void listenOnTcp(const ServerSettings& settings)
    {
        const tcp::endpoint wanted(asio::ip::make_address_v4(settings.address), settings.port);
        acceptor.open(wanted.protocol());
        claimPort(acceptor.native_handle());
        if (settings.behaviour.readBytesPerSecond > 0 ||
            settings.behaviour.fault == Behaviour::Fault::Stall) {
            keepBuffersSmall(acceptor);
        }
        acceptor.bind(wanted);
        acceptor.listen(16);
        port = acceptor.local_endpoint().port();
    }

    Connection& add(Server& server, std::unique_ptr<Line> line)
    {
        connections.remove_if([](const auto& connection) { return connection->isGone(); });
        connections.push_back(std::make_shared<Connection>(server, context, std::move(line)));
        return *connections.back();
    }
};

Server::Server(const ServerSettings& settings, JobMaker maker)
    : m_maker(std::move(maker)),
      m_model(settings.model),
      m_state(settings.state),
      m_behaviour(settings.behaviour),
      m_links(std::make_unique<Links>())
{
    if (settings.tcp) {
        m_links->listenOnTcp(settings);
        acceptNext();
    }
    if (settings.serial) {
        SerialLine serial = openSerialLine(m_links->context, settings.serialLink);
        m_links->serialPath = serial.path;
        m_links->add(*this, std::move(serial.line)).awaitBytes();
    }
}

Server::~Server()
{
    try {
        for (const auto& connection : m_links->connections) {
            connection->end();
        }
    } catch (...) {
        // No memory: the system closes what the process leaves.
    }
}

std::uint16_t Server::port() const
{
    return m_links->port;
}

const std::string& Server::serialPath() const
{
    return m_links->serialPath;
}

void Server::run(int jobs)
{
    m_jobsWanted = jobs;
    m_links->context.run();
}

void Server::stop()
{
    m_links->context.stop();
}

void Server::stopOnSignals()
{
    m_links->signals.add(SIGINT);
    m_links->signals.add(SIGTERM);
    m_links->signals.async_wait([this](std::error_code error, int) {
        if (!error) {
            stop();
        }
    });
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

void Server::setModel(const Model& model)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_model = model;
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

Model Server::model() const
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    return m_model;
}

void Server::acceptNext()
{
    m_links->acceptor.async_accept([this](std::error_code error, tcp::socket socket) {
        if (error == asio::error::operation_aborted) {
            return;
        }
        if (!error) { // else it went away before it was accepted
            Connection& connection =
                m_links->add(*this, std::make_unique<TcpLine>(std::move(socket)));
            connection.beginJob();
            connection.awaitBytes();
        }
        acceptNext();
    });
}

void Server::jobEnded()
{
    if (++m_jobsEnded == m_jobsWanted) {
        stop();
    }
}

} // namespace virtual_printer
