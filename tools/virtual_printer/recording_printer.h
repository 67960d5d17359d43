// A virtual printer for tests: served on a thread of its own, everything kept in memory.
#pragma once

#include "server.h"

#include <condition_variable>
#include <thread>
#include <vector>

namespace virtual_printer
{

class RecordingPrinter
{
public:
    /** What came over one connection. */
    struct Record {
        std::string bytes;
        std::string sent; // answers and unasked status bytes
        std::chrono::steady_clock::time_point firstByte;
        std::chrono::steady_clock::time_point lastByte;
        bool faulted = false;
        bool ended = false;
    };
    using Records = std::vector<Record>;

    enum class Keep { All, Nothing };

    /** Listens at once. Keep::Nothing: one record, without bytes, for whichever connection is the
     *  latest; it takes no memory however long the printer serves. Throws std::system_error. */
    explicit RecordingPrinter(const ServerSettings& settings = {}, Keep keep = Keep::All);
    ~RecordingPrinter();
    RecordingPrinter(const RecordingPrinter&) = delete;
    RecordingPrinter& operator=(const RecordingPrinter&) = delete;

    std::uint16_t port() const { return m_server.port(); }
    const std::string& serialPath() const { return m_server.serialPath(); }
    void setModel(const Model& model) { m_server.setModel(model); }
    void setState(const State& state) { m_server.setState(state); }
    void setBehaviour(const Behaviour& behaviour) { m_server.setBehaviour(behaviour); }

    /** Everything so far, in the order in which the connections began. */
    Records records() const;

    /** Waits until the records satisfy the condition; false when they do not within the time. */
    bool waitUntil(const std::function<bool(const Records&)>& condition,
                   std::chrono::milliseconds timeout = std::chrono::seconds(10)) const;
    /** Waits until that connection (counted from 0) has ended, and gives its bytes; what has come
     *  by then when it does not end in time. */
    std::string bytesOfJob(std::size_t index) const;

private:
    class Recorder;

    const Keep m_keep;
    mutable std::mutex m_mutex;
    mutable std::condition_variable m_changed;
    Records m_records;
    Server m_server;
    std::thread m_thread;
};

} // namespace virtual_printer
