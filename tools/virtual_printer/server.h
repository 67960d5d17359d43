// The printer's links: a TCP port, a pseudo-terminal as serial port, and how they misbehave.
#pragma once

#include "device.h"

#include <chrono>
#include <functional>
#include <map>
#include <memory>
#include <mutex>

namespace virtual_printer
{

/** How a printer misbehaves; the defaults are good behaviour. */
struct Behaviour {
    bool silent = false;     // answers no query
    int lateMs = 0;          // answers that long after the query
    int byteGapMs = 0;       // time between two bytes of an answer
    int promptReplies = 0;   // so many answers per connection come as they should
    int unaskedStatusMs = 0; // period of unasked status bytes; 0 for none
    std::map<std::string, std::string> answers; // by query, before the model's; may be empty
    std::string anyAnswer;                      // to each other query that the model answers

    int readBytesPerSecond = 0;           // 0 for as fast as they come
    std::uint64_t slowBytes = UINT64_MAX; // so many of a connection at that speed

    // Reset and Close end a connection, HalfClose says no more on it, Stall reads no more from it;
    // Garbage is said once, Babble without end.
    enum class Fault { None, Reset, Close, HalfClose, Stall, Garbage, Babble };
    Fault fault = Fault::None;
    std::uint64_t faultAfterBytes = 0; // received on a connection, and not one more read before
};

/** What becomes of the bytes of one connection. Called on the thread that runs the server. */
class Job
{
public:
    virtual ~Job() = default;
    Job() = default;
    Job(const Job&) = delete;
    Job& operator=(const Job&) = delete;

    virtual void received(std::string_view bytes) = 0;
    virtual void command(const Command& command) = 0;
    /** What the printer does wrong by intent has just happened to the connection. */
    virtual void faulted() {}
    /** An answer, or a byte of it, or an unasked status left. */
    virtual void sent(std::string_view /*bytes*/) {}
    /** Bytes came a moment ago, within showPeriod: what there is can be shown. */
    virtual void show() {}
    static constexpr std::chrono::milliseconds showPeriod{250};
    /** The connection is gone; every command has been handed over. */
    virtual void ended() = 0;
};

struct ServerSettings {
    Model model = *findModel("VANTA");
    State state = {};
    Behaviour behaviour = {};
    bool tcp = true;
    std::string address = "127.0.0.1"; // IPv4 address to listen on
    std::uint16_t port = 0;            // 0: any
    bool serial = false;               // serve a pseudo-terminal too; not on Windows
    std::string serialLink = {};       // symbolic link to the pseudo-terminal; empty for none
};

/** Serves any number of connections at once, each a job of its own. */
class Server
{
public:
    using JobMaker = std::function<std::unique_ptr<Job>(int number, const Model& model)>;

    /** Opens the links. maker: called with 1, 2, ... and the model in force when a connection begins
     *  (on the serial line: with its first byte). Throws std::system_error. */
    Server(const ServerSettings& settings, JobMaker maker);
    ~Server();
    Server(const Server&) = delete;
    Server& operator=(const Server&) = delete;

    std::uint16_t port() const;
    /** Path of the serial device; empty without one. */
    const std::string& serialPath() const;

    /** Serves until stop(), or until so many jobs have ended (0: no such limit). */
    void run(int jobs = 0);
    /** Ends run(), also one that is yet to begin; may be called from any thread. */
    void stop();
    /** From now on, while this lives, the signals by which a user ends a program end run(). */
    void stopOnSignals();

    // From any thread.
    void setState(const State& state);
    /** For the connections that begin from now on. */
    void setModel(const Model& model);
    void setBehaviour(const Behaviour& behaviour);

private:
    class Connection;
    struct Links;

    void acceptNext();
    void jobEnded();
    Behaviour behaviour() const;
    State state() const;
    Model model() const;

    JobMaker m_maker;
    mutable std::mutex m_mutex;
    Model m_model;
    State m_state;
    Behaviour m_behaviour;
    int m_jobsBegun = 0;
    int m_jobsEnded = 0;
    int m_jobsWanted = 0;
    std::unique_ptr<Links> m_links;
};

} // namespace virtual_printer
