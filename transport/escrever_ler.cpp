#include "escrever_ler.h"

#include "q7_impressora.h"

#include <algorithm>

namespace q7
{
namespace
{

using std::chrono::milliseconds;

/** A reply that has begun is whole, whatever its reader expects, once this time passes without a
 *  further byte: serial printers send their replies byte by byte. */
constexpr milliseconds replyGap(30);
// A reply from a printer that never stops talking ends here; over USB where applications' buffers
// for DirectIO do.
constexpr std::size_t replyLimit = 65536;
constexpr std::size_t usbReplyLimit = 1024;
// How long the input must be silent behind a missing reply, and how long that is waited for.
constexpr milliseconds silence(50);
constexpr milliseconds silenceLimit(250);

} // namespace

void EscreverLer::discardLateReplies()
{
    const Deadline limit = after(silenceLimit);
    do
        m_connection.takeInput();
    while (m_isReplyMissing && m_connection.waitForInput(std::min(limit, after(silence))) &&
           !hasPassed(limit));
    m_connection.takeInput();
    m_isReplyMissing = false;
}

EscreverLer::Reply EscreverLer::readReply(milliseconds timeout, const ReplyIsWhole& isWhole)
{
    m_connection.handOver();
    const bool isUsb = m_connection.getKind() == UsbConnection;
    std::string data;
    if (isUsb || m_connection.waitForInput(after(replyTimeout)))
        data = read(after(timeout), isWhole);
    m_isReplyMissing = data.empty();
    return {data.empty() ? Q7_ERR_NO_REPLY : Q7_OK, std::move(data)};
}

std::string EscreverLer::read(Deadline deadline, const ReplyIsWhole& isWhole)
{
    const std::size_t limit = m_connection.getKind() == UsbConnection ? usbReplyLimit : replyLimit;
    std::string reply = m_connection.takeInput();
    while (!isWhole(reply) && reply.size() < limit) {
        const Deadline next = reply.empty() ? deadline : std::min(deadline, after(replyGap));
        if (!m_connection.waitForInput(next))
            break;
        reply += m_connection.takeInput();
    }
    if (reply.size() > limit)
        reply.resize(limit); // as the caller's buffer is
    return reply;
}

bool endsWithZero(const std::string& reply)
{
    return reply.find('\0') != std::string::npos;
}

bool isOneByte(const std::string& reply)
{
    return !reply.empty();
}

bool isNeverWhole(const std::string& /*reply*/)
{
    return false;
}

} // namespace q7
