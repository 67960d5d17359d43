// A printer that takes bytes as fast as they come, and does its worst at a byte of one's choice.
#pragma once

#include "command_parser.h"
#include "device.h"

#include <condition_variable>
#include <mutex>
#include <optional>
#include <string>
#include <thread>

namespace q7test
{

enum class Fault { None, Closed, Reset, HalfClosed, Stalled, Garbage, Endless };

class HostilePrinter
{
public:
    enum class Line { Tcp, Terminal }; // at 127.0.0.1; a pseudo-terminal
    enum class Keep { Bytes, Nothing };

    /** fault, atByte: what happens to its first connection once so many bytes have come. */
    explicit HostilePrinter(Line line, Keep keep = Keep::Nothing, Fault fault = Fault::None,
                            std::size_t atByte = 0);
    ~HostilePrinter();
    HostilePrinter(const HostilePrinter&) = delete;
    HostilePrinter& operator=(const HostilePrinter&) = delete;

    int port() const { return m_port; }
    const std::string& terminal() const { return m_terminal; } // empty for TCP
    /** Which model answers. */
    void setModel(const std::string& model);

    /** From now on, the answer to each query; empty for what a printer answers. */
    void answerWith(const std::string& reply);
    /** Waits until the fault has happened; false when it does not. */
    bool waitForFault();
    // What came over the latest connection, if bytes are kept: once it holds a text, once there is so
    // much of it, or once it was closed (TCP); or what there is when time is up.
    std::string waitForText(const std::string& text, std::size_t from);
    std::string waitForBytes(std::size_t count);
    std::string waitForClose();

private:
    template <typename Condition> std::string bytesOnce(Condition condition);
    void serve();
    void accept();
    void listenAnew();
    bool receive();
    void misbehave();
    void say(const std::string& bytes) const;
    void hangUp();

    const Line m_line;
    const Keep m_keep;
    int m_wake[2] = {-1, -1};
    int m_listener = -1;
    int m_connection = -1;
    int m_port = 0;
    std::string m_terminal;

    std::mutex m_mutex;
    std::condition_variable m_changed;
    Fault m_fault;               // to come
    Fault m_under = Fault::None; // has happened to this connection
    std::size_t m_atByte;
    std::size_t m_received = 0;
    std::string m_bytes;
    std::string m_reply;
    std::string m_model = "VANTA";
    std::optional<virtual_printer::CommandParser> m_parser;
    std::thread m_thread;
};

} // namespace q7test
