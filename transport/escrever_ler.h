// The reply reader of a session: waits for what a printer answers and takes it.
#pragma once

#include "printer_connection.h"

#include <QByteArray>

namespace q7
{

/** Made for a connection after it opened; never used with another. Reading is bounded by deadlines
 *  and runs on the caller's thread: ending a blocked thread by force would leave the process's heap
 *  and the port in an unknown state. A USB device on Windows, whose reads cannot be bounded, keeps
 *  its own reader thread behind its interface. */
class EscreverLer
{
public:
    struct Reply {
        int status; // 0 when data was taken, Q7_ERR_NO_REPLY when nothing came
        QByteArray data;
    };

    explicit EscreverLer(PrinterConnection& connection) : m_connection(connection) {}

    const PrinterConnection* connection() const { return &m_connection; }

    /** Waits at most 1500 ms for the reply to begin (not over USB), then at most timeoutMs for its
     *  end. */
    Reply readReply(int timeoutMs, const ReplyIsWhole& isWhole);

private:
    PrinterConnection& m_connection;
};

/** Whole at their zero byte: names and identifications. */
bool endsWithZero(const QByteArray& reply);
/** Whole at their first byte: real-time status. */
bool isOneByte(const QByteArray& reply);
/** Nobody knows: the gap between bytes decides. */
bool isNeverWhole(const QByteArray& reply);

} // namespace q7
