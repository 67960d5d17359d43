// The reply reader of a session: waits for what a printer answers and takes it.
#pragma once

#include "printer_connection.h"

#include <chrono>
#include <functional>
#include <string>

namespace q7
{

/** How long a printer may take to begin its reply, and the reply to end. */
constexpr std::chrono::milliseconds replyTimeout(1500);

/** Tells from what has arrived whether a reply is whole. */
using ReplyIsWhole = std::function<bool(const std::string&)>;

/** Made for a connection after it opened; never used with another. Reading is bounded by deadlines
 *  and runs on the caller's thread: ending a blocked thread by force would leave the process's heap
 *  and the port in an unknown state. */
class EscreverLer
{
public:
    struct Reply {
        int status; // 0 when data was taken, Q7_ERR_NO_REPLY when nothing came
        std::string data;
    };

    explicit EscreverLer(PrinterConnection& connection) : m_connection(connection) {}

    /** Throws away what waits to be read, before a query: late answers to earlier ones. When the
     *  last reply did not come in time it may be on its way still, and is waited for. */
    void discardLateReplies();

    /** Waits at most 1500 ms for the reply to begin (not over USB), then at most timeout for its
     *  end. */
    Reply readReply(std::chrono::milliseconds timeout, const ReplyIsWhole& isWhole);

    /** Reads one reply. Returns what had arrived when it was whole or the deadline passed. */
    std::string read(Deadline deadline, const ReplyIsWhole& isWhole);

private:
    PrinterConnection& m_connection;
    bool m_isReplyMissing = false;
};

/** Whole at their zero byte: names and identifications. */
bool endsWithZero(const std::string& reply);
/** Whole at their first byte: real-time status. */
bool isOneByte(const std::string& reply);
/** Nobody knows: the gap between bytes decides. */
bool isNeverWhole(const std::string& reply);

} // namespace q7
