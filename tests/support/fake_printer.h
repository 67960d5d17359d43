// A printer at the far end of a real link: records what comes, answers from a script, misbehaves.
#pragma once

#include <chrono>
#include <condition_variable>
#include <functional>
#include <map>
#include <mutex>
#include <string>
#include <thread>
#include <vector>

namespace q7test
{

using Clock = std::chrono::steady_clock;
constexpr std::chrono::milliseconds generousTime = std::chrono::seconds(15);

/** What a printer answers and how it behaves. The defaults are a quick and friendly VANTA. */
struct PrinterScript {
    std::string model = "VANTA";                // named to GS I 67; by TESMO to ~HI instead
    std::map<std::string, std::string> answers; // further queries, these first: bytes to reply

    bool isSilent = false;
    int replyDelayMs = 0;
    int replyByteGapMs = 0; // between the bytes of a reply
    std::string unasked;    // sent every unaskedEveryMs, from the first byte received on
    int unaskedEveryMs = 0;

    int bytesPerSecond = 0;                      // reads no faster; 0 for as they come
    std::size_t slowBytes = std::string::npos;   // so many; then it reads as they come
    std::size_t readsAtMost = std::string::npos; // of a connection; then it reads no more
    int receiveBufferBytes = 0;                  // TCP, of the system; 0 for its default
    int segmentBytes = 0; // TCP, longest segment; small ones keep the sender's buffer small

    enum class End { Stays, Closes, Resets } end = End::Stays;
    std::size_t endsAfter = 0; // received bytes
};

/** What came over one connection; on a serial line, from one opening of the port to its close. */
struct Received {
    struct Packet {
        Clock::time_point time;
        std::size_t size;
    };
    std::string bytes;
    std::vector<Packet> packets; // as they were read
    std::size_t segments = 0;    // TCP: data segments that brought them
    std::size_t replies = 0;     // pieces of replies sent
    bool isClosed = false;

    std::chrono::duration<double, std::milli> duration(std::size_t fromByte) const;
};

class FakePrinter
{
public:
    virtual ~FakePrinter();
    FakePrinter(const FakePrinter&) = delete;
    FakePrinter& operator=(const FakePrinter&) = delete;

    void change(const std::function<void(PrinterScript&)>& edit);

    /** Every connection so far, in the order in which they began. */
    std::vector<Received> received() const;
    /** The bytes of the latest connection. */
    std::string bytes() const;

    /** Waits until the condition holds; false when it does not in time. */
    bool waitUntil(const std::function<bool(const std::vector<Received>&)>& condition,
                   std::chrono::milliseconds limit = generousTime) const;
    /** The latest connection's bytes, once there are so many of them; what came by the limit. */
    std::string waitForBytes(std::size_t count,
                             std::chrono::milliseconds limit = generousTime) const;
    /** The latest connection's bytes once it was closed, all that were sent. Empty when it was not
     *  closed in time. */
    std::string waitForClose(std::chrono::milliseconds limit = generousTime) const;

    /** Ends all connections at once, without a farewell. */
    void vanish();

protected:
    struct Connection;

    FakePrinter(PrinterScript script, int listener, int terminal);
    void stop();

private:
    void run();
    void serve(Connection& connection, const PrinterScript& script);
    void take(Connection& connection, const PrinterScript& script, std::size_t limit);
    void end(Connection& connection, PrinterScript::End how);
    PrinterScript script() const;

    mutable std::mutex m_mutex;
    mutable std::condition_variable m_changed;
    PrinterScript m_script;
    std::vector<Received> m_received;
    bool m_stops = false;
    bool m_vanishes = false;
    int m_listener;
    int m_terminal;
    int m_wake[2];
    std::thread m_thread;
};

/** Listens on 127.0.0.1, at any number of connections. */
class TcpPrinter : public FakePrinter
{
public:
    explicit TcpPrinter(const PrinterScript& script = {});
    ~TcpPrinter() override { stop(); }

    int port() const { return m_port; }

private:
    TcpPrinter(const PrinterScript& script, int listener);
    int m_port;
};

/** A serial printer on a pseudo-terminal. */
class PtyPrinter : public FakePrinter
{
public:
    explicit PtyPrinter(const PrinterScript& script = {});
    ~PtyPrinter() override { stop(); }

    const std::string& device() const { return m_device; } // "/dev/pts/N"

private:
    PtyPrinter(const PrinterScript& script, int terminal);
    std::string m_device;
};

/** A port of 127.0.0.1 that lets connections neither succeed nor fail. */
class DeafPort
{
public:
    DeafPort();
    ~DeafPort();
    DeafPort(const DeafPort&) = delete;
    DeafPort& operator=(const DeafPort&) = delete;

    int port() const { return m_port; }

private:
    std::vector<int> m_sockets;
    int m_port;
};

/** A port of 127.0.0.1 at which nobody listens. */
int refusingPort();

} // namespace q7test
