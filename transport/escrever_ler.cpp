#include "escrever_ler.h"

#include "q7_impressora.h"

namespace q7
{

EscreverLer::Reply EscreverLer::readReply(int timeoutMs, const ReplyIsWhole& isWhole)
{
    m_connection.handOver();
    if (!m_connection.waitReadable())
        return {Q7_ERR_NO_REPLY, {}};
    const QByteArray data = m_connection.readReply(timeoutMs, isWhole);
    return {data.isEmpty() ? Q7_ERR_NO_REPLY : Q7_OK, data};
}

bool endsWithZero(const QByteArray& reply)
{
    return reply.contains('\0');
}

bool isOneByte(const QByteArray& reply)
{
    return !reply.isEmpty();
}

bool isNeverWhole(const QByteArray& /*reply*/)
{
    return false;
}

} // namespace q7
