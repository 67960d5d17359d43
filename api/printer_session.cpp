#include "printer_session.h"

#include "everlasting.h"
#include "fiscal_settings.h"
#include "log.h"
#include "version.h"

namespace q7
{
namespace
{

// Never destroyed: an open connection is closed by FechaConexaoImpressora alone.
Everlasting<PrinterSession> theSession;

} // namespace

PrinterSession& session()
{
    return *theSession;
}

PrinterSession::PrinterSession()
{
    modelTable();
    fiscalLayout();
    writeLog(LogKind::Information, QString("Biblioteca carregada ") + libraryVersion);
}

const PrinterModel& PrinterSession::model() const
{
    const PrinterModel* row = modelById(modelIndex);
    return row != nullptr ? *row : modelTable().front();
}

int PrinterSession::send(Bytes bytes)
{
    return connection ? connection->send(bytes) : int{Q7_ERR_NOT_OPEN};
}

int PrinterSession::sendText(Bytes bytes)
{
    return send(bytes.toFirstZero());
}

void PrinterSession::sendAll(std::initializer_list<Bytes> commands)
{
    for (const Bytes& command : commands)
        send(command);
}

void PrinterSession::sendQuery(std::initializer_list<Bytes> commands)
{
    if (escreverLer)
        escreverLer->discardLateReplies();
    sendAll(commands);
}

int PrinterSession::readReply(const ReplyIsWhole& isWhole, std::chrono::milliseconds timeout)
{
    replyData.clear();
    if (!escreverLer)
        return Q7_ERR_NO_REPLY;
    EscreverLer::Reply reply = escreverLer->readReply(timeout, isWhole);
    replyData = std::move(reply.data);
    return reply.status;
}

} // namespace q7
