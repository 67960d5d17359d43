#include "printer_session.h"

#include "foreign_thread.h"
#include "log.h"
#include "version.h"

namespace q7
{
namespace
{

// Never destroyed: an open connection is closed by FechaConexaoImpressora alone.
PrinterSession& theSession = []() -> PrinterSession& {
    const ForeignThread thread;
    return *new PrinterSession;
}();

} // namespace

PrinterSession& session()
{
    return theSession;
}

PrinterSession::PrinterSession()
{
    modelTable();
    writeLog(LogKind::Information, QString("Biblioteca carregada ") + libraryVersion);
}

const PrinterModel& PrinterSession::model() const
{
    const PrinterModel* row = modelById(modelIndex);
    return row != nullptr ? *row : modelTable().front();
}

int PrinterSession::send(const QByteArray& bytes)
{
    return connection ? connection->send(bytes) : int{Q7_ERR_NOT_OPEN};
}

int PrinterSession::sendText(const QByteArray& bytes)
{
    const int end = bytes.indexOf('\0');
    return send(end < 0 ? bytes : bytes.left(end));
}

void PrinterSession::sendAll(std::initializer_list<QByteArray> commands)
{
    for (const QByteArray& command : commands)
        send(command);
}

void PrinterSession::sendQuery(std::initializer_list<QByteArray> commands)
{
    if (connection)
        connection->discardInput();
    sendAll(commands);
}

int PrinterSession::readReply(const ReplyIsWhole& isWhole, int timeoutMs)
{
    replyData.clear();
    if (!escreverLer || escreverLer->connection() != connection.get())
        return Q7_ERR_NO_REPLY;
    EscreverLer::Reply reply = escreverLer->readReply(timeoutMs, isWhole);
    replyData = std::move(reply.data);
    return reply.status;
}

} // namespace q7
