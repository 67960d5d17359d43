// The one printer session of the process, on which every export works.
#pragma once

#include "escrever_ler.h"
#include "printer_connection.h"
#include "printer_models.h"
#include "q7_impressora.h"

#include <initializer_list>
#include <memory>
#include <string>

namespace q7
{

class PrinterSession
{
public:
    PrinterSession();

    bool isOpen() const { return connection && connection->isOpen(); }

    /** The connected model's row; the first row while modelIndex names none. */
    const PrinterModel& model() const;

    /** Sends bytes through the current connection. Returns their count or a code; see PrinterConnection::send. */
    int send(Bytes bytes);

    /** Sends bytes as a zero-terminated string: nothing from the first zero byte on. */
    int sendText(Bytes bytes);

    /** Sends each byte string on its own; the counts are not looked at. */
    void sendAll(std::initializer_list<Bytes> commands);

    /** Sends a query behind which a reply is expected, late answers to earlier ones thrown away. */
    void sendQuery(std::initializer_list<Bytes> commands);

    /** Reads a reply into replyData. Returns 0 when there is one, else Q7_ERR_NO_REPLY.
     *  timeout: for the reply's end; its beginning has replyTimeout. */
    int readReply(const ReplyIsWhole& isWhole, std::chrono::milliseconds timeout = replyTimeout);

    std::unique_ptr<PrinterConnection> connection;
    std::unique_ptr<EscreverLer> escreverLer; // for this connection, or null
    int lastResult = 0;
    int modelIndex = 0;    // the connected model's id
    int lineSpacing = 0;   // dots; 0: never set. Kept across connections, nothing clears it
    bool pageMode = false; // kept likewise once ModoPagina was called
    std::string replyData;

    // Of the fiscal receipts.
    bool useWidth2 = false;                // separators span the small font's columns
    bool nextCopyIsEstablishments = false; // which copy of a contingency note comes next

    int callDepth = 0; // exports under way, one inside another
};

/** The session. It lives from the library's load to the process's end. */
PrinterSession& session();

} // namespace q7
