#include "printer_connection.h"

#include "escrever_ler.h"
#include "log.h"
#include "printer_models.h"
#include "q7_impressora.h"
#include "serial_link.h"
#include "tcp_link.h"
#include "usb_link.h"

namespace q7
{
namespace
{

constexpr int connectTimeoutMs = 2000;
constexpr int modelReplyTimeoutMs = 750;
// One more than the last port number; it has always passed and stays accepted.
constexpr int highestPort = 65536;

/** The one model that speaks another language when asked for its name. */
constexpr char tesmoName[] = "TESMO";

QByteArray modelQuery(const QString& model)
{
    return model == QLatin1String(tesmoName) ? QByteArray("~HI")           // host identification
                                             : QByteArray("\x1D\x49\x43"); // GS I 67
}

QString modelNameIn(const QByteArray& reply, const QString& model)
{
    QString text = QString::fromUtf8(reply.constData()); // to the first zero byte
    if (model == QLatin1String(tesmoName))
        text = text.section(',', 0, 0).remove(QChar(0x02)); // STX
    return text;
}

} // namespace

PrinterConnection::PrinterConnection(std::function<UsbSearch(const QString&)> usbSearch)
    : m_usbSearch(std::move(usbSearch))
{
}

PrinterConnection::~PrinterConnection() = default;

int PrinterConnection::open(const QString& address, const QString& model, int number)
{
    switch (m_kind) {
    case UsbConnection:
        return openUsb(model);
    case SerialConnection:
        return openSerial(address, model, number);
    case NetworkConnection:
        return openNetwork(address, model, number);
    default:
        return m_kind; // nothing is opened; a kind that was never set reads as success
    }
}

int PrinterConnection::openSerial(const QString& address, const QString& model, int bitsPerSecond)
{
    SerialOpened opened = openSerialLink(address, bitsPerSecond);
    if (!opened.link)
        return opened.result;
    return keepIfModelAnswers(std::move(opened.link), model);
}

int PrinterConnection::openNetwork(const QString& host, const QString& model, int port)
{
    if (port > highestPort)
        return Q7_ERR_TCP_PORT;
    TcpLink::Opened opened = TcpLink::connect(host, static_cast<quint16>(port), connectTimeoutMs);
    if (!opened.link) {
        writeLog(LogKind::Function, opened.errorText);
        return opened.error; // a refusal is number 0: callers test the link before every command
    }
    return keepIfModelAnswers(std::move(opened.link), model);
}

int PrinterConnection::openUsb(const QString& model)
{
    const UsbSearch search = m_usbSearch(model);
    if (search.result != Q7_OK)
        return search.result;
    UsbOpened opened = openUsbDevice(search.path);
    if (!opened.device) {
        writeLog(LogKind::Information,
                 "ERRO DE ABERTURA DE PORTA:" + QString::number(opened.error));
        return Q7_ERR_USB_OPEN;
    }
    // The identifiers have told the model already.
    m_link = std::make_unique<UsbLink>(std::move(opened.device));
    return Q7_OK;
}

// A link whose printer does not answer as the model is dropped, which closes it.
int PrinterConnection::keepIfModelAnswers(std::unique_ptr<Link> link, const QString& model)
{
    link->discardInput();
    link->send(modelQuery(model));
    link->handOver();
    const QByteArray reply = link->readReply(QDeadlineTimer(modelReplyTimeoutMs), endsWithZero);
    const int result = matchModelReply(model, modelNameIn(reply, model));
    if (result == Q7_OK)
        m_link = std::move(link);
    return result;
}

bool PrinterConnection::isOpen() const
{
    return m_link && m_link->isOpen();
}

int PrinterConnection::send(const QByteArray& bytes)
{
    if (logIsOn())
        writeLog(static_cast<int>(LogKind::SentCommands), bytes.toHex().toUpper().constData());
    return m_link ? m_link->send(bytes) : int{Q7_ERR_NOT_OPEN};
}

void PrinterConnection::handOver()
{
    if (m_link)
        m_link->handOver();
}

void PrinterConnection::beginCall()
{
    if (m_link)
        m_link->beginCall();
}

void PrinterConnection::endCall()
{
    if (m_link)
        m_link->endCall();
}

bool PrinterConnection::waitReadable()
{
    return m_link && m_link->waitReadable(replyTimeoutMs);
}

void PrinterConnection::discardInput()
{
    if (m_link)
        m_link->discardInput();
}

QByteArray PrinterConnection::readReply(int timeoutMs, const ReplyIsWhole& isWhole)
{
    return m_link ? m_link->readReply(QDeadlineTimer(timeoutMs), isWhole) : QByteArray();
}

int PrinterConnection::close()
{
    if (m_link)
        return m_link->close();
    return m_kind == UsbConnection ? Q7_ERR_NOT_OPEN : Q7_OK;
}

int matchModelReply(const QString& model, const QString& reply)
{
    for (const PrinterModel& known : modelTable())
        if (reply.contains(QLatin1String(known.name), Qt::CaseInsensitive))
            return reply.contains(model, Qt::CaseInsensitive) ? Q7_OK : Q7_ERR_MODEL;
    return Q7_ERR_UNKNOWN_PRINTER;
}

} // namespace q7
