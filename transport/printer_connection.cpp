#include "printer_connection.h"

#include "endpoint.h"
#include "escrever_ler.h"
#include "guest.h"
#include "log.h"
#include "printer_models.h"
#include "q7_impressora.h"
#include "serial_endpoint.h"
#include "tcp_endpoint.h"
#include "usb_endpoint.h"

#include <asio/error.hpp>
#include <asio/executor_work_guard.hpp>
#include <asio/io_context.hpp>

#include <algorithm>
#include <array>

namespace q7
{
namespace
{

using std::chrono::milliseconds;

constexpr milliseconds connectTimeout(2000);
constexpr milliseconds modelReplyTimeout(750);
constexpr milliseconds handOverLimit(250);
// How long a printer that takes nothing is waited for when its link is closed, and how long one may
// take to close its side after ours was closed.
constexpr milliseconds closeStallLimit(5000);
constexpr milliseconds farCloseLimit(500);
// How long an operation may take to end after it was cancelled.
constexpr milliseconds cancelLimit(250);
// Between looks at what the system still holds.
constexpr milliseconds drainPause(5);
constexpr milliseconds deliveryPause(100);
// A printer with nothing to say answers a read with an empty packet.
constexpr milliseconds emptyReadPause(5);
// A call behind which the last one ended just now knows the link's state.
constexpr std::chrono::microseconds lookInterval(500);

constexpr milliseconds usbWriteTimeout(1500);
constexpr milliseconds usbWriteTimeoutPerByte(2);
// A USB printer that took nothing last time is given this long to show that it moves again, and not
// at each of a receipt's hundreds of sends.
constexpr milliseconds usbTrialTime(20);
constexpr milliseconds usbTrialInterval(250);

// One more than the last port number; it has always passed and stays accepted.
constexpr int highestPort = 65536;

// Sends of one call leave together up to here; those of a longer call begin to leave before it ends.
constexpr std::size_t mostGathered = 65536;
constexpr std::size_t mostWaiting = 64 << 20;
constexpr std::size_t mostInput = 65536;
// An input that never dries up ends a look at it.
constexpr int readyRounds = 64;
// Of one write: a slow printer's progress is to be seen, and Windows takes what a write has, whatever
// its size, once its buffer has any room.
constexpr std::size_t writeSize = 8192;
// A second of a usual serial line: not each system tells how far it is with a write.
constexpr std::size_t serialWriteSize = 1024;

/** The one model that speaks another language when asked for its name. */
constexpr char tesmoName[] = "TESMO";

Bytes modelQuery(const QString& model)
{
    return model == QLatin1String(tesmoName) ? Bytes("~HI")           // host identification
                                             : Bytes("\x1D\x49\x43"); // GS I 67
}

QString modelNameIn(const std::string& reply, const QString& model)
{
    QString text = QString::fromUtf8(reply.c_str()); // to the first zero byte
    if (model == QLatin1String(tesmoName))
        text = text.section(',', 0, 0).remove(QChar(0x02)); // STX
    return text;
}

void logSend(Bytes bytes)
{
    if (!logIsOn())
        return;
    static constexpr char digits[] = "0123456789ABCDEF";
    std::string text;
    text.reserve(2 * bytes.size());
    for (const char byte : bytes) {
        const auto value = static_cast<unsigned char>(byte);
        text += digits[value / 16];
        text += digits[value % 16];
    }
    writeLog(static_cast<int>(LogKind::SentCommands), text.c_str());
}

} // namespace

/** All that an operation under way needs: left behind on the heap when a driver never lets go. */
struct PrinterConnection::Link {
    asio::io_context context{1};
    // The context waits even while nothing is under way.
    asio::executor_work_guard<asio::io_context::executor_type> isInUse{context.get_executor()};
    std::unique_ptr<Endpoint> endpoint;
    std::array<char, 4096> input = {};
    std::string output;
    bool isReading = false;
    bool isWriting = false;
};

PrinterConnection::PrinterConnection(std::function<UsbSearch(const QString&)> usbSearch)
    : m_usbSearch(std::move(usbSearch))
{
}

PrinterConnection::~PrinterConnection()
{
    try {
        if (m_link && stopHandingOver())
            closeLink();
    } catch (...) {
        // No memory: the system closes what the process leaves.
    }
}

// ---------------------------------------------------------------- opening

int PrinterConnection::open(const QString& address, const QString& model, int number)
{
    if (m_kind < UsbConnection || m_kind > NetworkConnection)
        return m_kind; // nothing is opened; a kind that was never set reads as success
    m_forkCount = forkCount();
    m_link = std::make_unique<Link>();
    int result = Q7_ERR_FAILED;
    try {
        result = m_kind == UsbConnection      ? openUsbPrinter(model)
                 : m_kind == SerialConnection ? openSerialPort(address, number)
                                              : openNetwork(address, number);
        if (m_link->endpoint)
            takeInput();                                 // an earlier program's answers
        if (m_link->endpoint && m_kind != UsbConnection) // whose identifiers have told the model
            result = checkModel(model);
    } catch (...) {
        closeLink();
        throw;
    }
    if (result != Q7_OK || !m_link->endpoint)
        closeLink();
    return result;
}

int PrinterConnection::openSerialPort(const QString& address, int bitsPerSecond)
{
    SerialOpened opened = openSerial(m_link->context, address, bitsPerSecond);
    m_link->endpoint = std::move(opened.endpoint);
    return opened.result;
}

int PrinterConnection::openNetwork(const QString& host, int port)
{
    if (port > highestPort)
        return Q7_ERR_TCP_PORT;
    TcpOpened opened = openTcp(m_link->context, host.toLatin1().toStdString(),
                               static_cast<unsigned short>(port), after(connectTimeout));
    m_link->endpoint = std::move(opened.endpoint);
    if (!m_link->endpoint)
        writeLog(LogKind::Function, opened.errorText);
    return opened.error; // a refusal is number 0: callers test the link before every command
}

int PrinterConnection::openUsbPrinter(const QString& model)
{
    const UsbSearch search = m_usbSearch(model);
    if (search.result != Q7_OK)
        return search.result;
    UsbOpened opened = openUsb(m_link->context, search.path);
    m_link->endpoint = std::move(opened.endpoint);
    if (m_link->endpoint)
        return Q7_OK;
    writeLog(LogKind::Information, "ERRO DE ABERTURA DE PORTA:" + QString::number(opened.error));
    return Q7_ERR_USB_OPEN;
}

int PrinterConnection::checkModel(const QString& model)
{
    m_queue.append(modelQuery(model));
    handOver();
    const std::string reply = EscreverLer(*this).read(after(modelReplyTimeout), endsWithZero);
    return matchModelReply(model, modelNameIn(reply, model));
}

// ---------------------------------------------------------------- calls

void PrinterConnection::beginCall()
{
    if (!m_link)
        return;
    if (!stopHandingOver()) {
        static_cast<void>(m_link.release()); // in no known state, for ever
        return;
    }
    if (m_forkCount != forkCount()) {
        m_forkCount = forkCount();
        m_link->context.notify_fork(asio::io_context::fork_child);
    }
    if (Clock::now() - m_lastLook < lookInterval)
        return;
    startReading();
    runReady();
    if (m_kind == SerialConnection && !m_link->endpoint->bytesInSystem())
        m_isLost = true;
}

void PrinterConnection::endCall()
{
    handOver();
    m_lastLook = Clock::now();
    if (m_isLost && m_link)
        closeLink();
    if (!isOpen() || m_queue.isEmpty())
        return;
    m_handOver = std::make_unique<OwnThread>([this] { handOverAll(); },
                                             [&context = m_link->context] { context.stop(); });
}

// On a thread of its own, until all is done or the next call stops the context.
void PrinterConnection::handOverAll()
{
    constexpr milliseconds wakeInterval(1000);
    m_writeError.clear();
    while (isOpen() && !m_queue.isEmpty() && !m_writeError && !m_link->context.stopped()) {
        write();
        startReading();
        m_link->context.run_one_for(wakeInterval);
    }
}

bool PrinterConnection::stopHandingOver()
{
    if (!m_handOver)
        return true;
    const bool hasEnded = m_handOver->stop();
    m_handOver.reset();
    if (hasEnded)
        m_link->context.restart();
    return hasEnded;
}

// ---------------------------------------------------------------- sending

int PrinterConnection::send(Bytes bytes)
{
    logSend(bytes);
    if (!isOpen())
        return Q7_ERR_NOT_OPEN;
    if (bytes.size() > mostWaiting - m_queue.size())
        return Q7_ERR_NOT_SENT;
    if (m_kind == UsbConnection)
        return sendUsb(bytes);
    m_queue.append(bytes);
    if (m_queue.size() > m_flushAt) {
        write();
        runReady();
        m_flushAt = m_queue.size() + mostGathered;
    }
    // The count is a signed 16-bit number: callers know a wrapped count for what it is.
    const auto count = static_cast<std::int16_t>(bytes.size());
    return count <= 0 ? int{Q7_ERR_NOT_SENT} : count;
}

// What was taken is known when the send returns. The rest of a send that was cut short stays in the
// queue; of one of which nothing was taken nothing does.
int PrinterConnection::sendUsb(Bytes bytes)
{
    const auto limit =
        usbWriteTimeout + usbWriteTimeoutPerByte * static_cast<std::int64_t>(bytes.size());
    const std::size_t takenBefore = m_taken;
    bool isOnTrial = m_isStalled;
    Deadline deadline = after(limit);
    if (isOnTrial) {
        const bool isPatient = hasPassed(m_nextTrial);
        deadline = isPatient ? after(usbTrialTime) : Clock::now();
        if (isPatient)
            m_nextTrial = after(usbTrialInterval);
    }
    m_queue.append(bytes);
    m_writeError.clear();
    write();
    runReady();
    while (!m_queue.isEmpty() && !m_writeError) {
        if (isOnTrial && m_taken != takenBefore) {
            isOnTrial = false; // it moves again
            deadline = after(limit);
        }
        if (!runOne(deadline))
            break;
        if (!m_link->isWriting)
            write();
    }
    if (m_link->isWriting) {
        m_link->endpoint->cancelWrite();
        for (const Deadline end = after(cancelLimit); m_link->isWriting && runOne(end);)
            ;
        if (m_link->isWriting)
            m_isLost = true; // the driver does not let go of it
    }
    // The system's own number, although it can be taken for a count: applications know it.
    if (m_writeError)
        return m_writeError.value();
    const std::size_t left = std::min(m_queue.size(), bytes.size());
    m_isStalled = left > 0;
    if (left < bytes.size())
        return static_cast<int>(bytes.size() - left);
    m_queue.takeBack(left);
    return Q7_ERR_NOT_SENT;
}

void PrinterConnection::handOver()
{
    if (!isOpen() || m_queue.isEmpty())
        return;
    m_flushAt = mostGathered;
    m_writeError.clear();
    const std::size_t takenBefore = m_taken;
    write();
    if (m_queue.isEmpty())
        return;
    runReady();
    if (m_isStalled && m_taken == takenBefore)
        return;
    const Deadline deadline = after(handOverLimit);
    while (isOpen() && !m_queue.isEmpty() && !m_writeError && runOne(deadline))
        ;
    m_isStalled = m_taken == takenBefore;
}

// Writes what the system takes at once, and starts to write the rest.
void PrinterConnection::write()
{
    Link& link = *m_link;
    std::error_code error;
    while (!link.isWriting && !m_queue.isEmpty() && !error && isOpen()) {
        const std::size_t count =
            link.endpoint->writeNow(m_queue.front().substr(0, writeSize), error);
        m_queue.drop(count);
        m_taken += count;
        if (error)
            linkFailed(error);
        else if (count == 0)
            startWriting();
    }
}

void PrinterConnection::startWriting()
{
    Link& link = *m_link;
    // Over USB all at once: that the printer takes it shows when it has taken it whole.
    const std::size_t size = m_kind == UsbConnection      ? std::string::npos
                             : m_kind == SerialConnection ? serialWriteSize
                                                          : writeSize;
    link.output = m_queue.front().substr(0, size);
    link.endpoint->startWrite(
        link.output, [this](std::error_code error, std::size_t count) { wrote(error, count); });
    link.isWriting = true;
}

void PrinterConnection::wrote(std::error_code error, std::size_t count)
{
    m_link->isWriting = false;
    m_queue.drop(count);
    m_taken += count;
    if (count > 0)
        m_isStalled = false;
    if (error == asio::error::operation_aborted)
        return;
    if (error)
        linkFailed(error);
    else
        write();
}

// Not each error means that the link is gone: a serial driver gives one for a full buffer, too.
void PrinterConnection::linkFailed(std::error_code error)
{
    m_writeError = error;
    if (m_kind == NetworkConnection)
        m_isLost = true;
    else if (m_kind == SerialConnection)
        m_isLost = m_isLost || !m_link->endpoint->bytesInSystem();
    else
        m_queue.clear();
}

// ---------------------------------------------------------------- reading

bool PrinterConnection::waitForInput(Deadline deadline)
{
    if (!isOpen())
        return false;
    startReading();
    runReady();
    while (m_input.empty() && isOpen() && !hasPassed(deadline)) {
        m_link->endpoint->askForMore();
        startReading();
        runOne(m_link->isReading ? deadline : std::min(deadline, m_nextRead));
    }
    return !m_input.empty();
}

std::string PrinterConnection::takeInput()
{
    if (isOpen()) {
        startReading();
        runReady();
    }
    return std::exchange(m_input, {});
}

void PrinterConnection::startReading()
{
    Link& link = *m_link;
    if (link.isReading || !isOpen() || !hasPassed(m_nextRead))
        return;
    link.endpoint->startRead(
        link.input.data(), link.input.size(),
        [this](std::error_code error, std::size_t count) { read(error, count); });
    link.isReading = true;
}

void PrinterConnection::read(std::error_code error, std::size_t count)
{
    m_link->isReading = false;
    m_input.append(m_link->input.data(), std::min(count, mostInput - m_input.size()));
    if (error == asio::error::operation_aborted)
        return;
    if (!error) {
        startReading();
        return;
    }
    if (m_kind == NetworkConnection ||
        (m_kind == SerialConnection && !m_link->endpoint->bytesInSystem()))
        m_isLost = true;
    m_nextRead = after(emptyReadPause);
}

// ---------------------------------------------------------------- waiting

void PrinterConnection::runReady()
{
    for (int round = 0; round < readyRounds && m_link->context.poll_one() > 0; ++round)
        ;
}

/** Waits until something has happened. Returns whether it did before the deadline. */
bool PrinterConnection::runOne(Deadline deadline)
{
    return m_link->context.run_one_until(deadline) > 0;
}

// ---------------------------------------------------------------- closing

int PrinterConnection::close()
{
    if (!m_link)
        return m_kind == UsbConnection ? Q7_ERR_NOT_OPEN : Q7_OK;
    deliver();
    const std::size_t lost = m_queue.size();
    if (lost > 0)
        writeLog(LogKind::Information,
                 "FECHAMENTO SEM ENTREGAR " + QString::number(lost) + " BYTES");
    else if (m_kind == NetworkConnection && isOpen()) {
        m_link->endpoint->endSending();
        waitForThePrintersEnd();
    }
    const std::error_code error = closeLink();
    return m_kind == UsbConnection ? error.value() : Q7_OK;
}

// Until everything has gone down to the printer, or nothing has for a while.
void PrinterConnection::deliver()
{
    // The system takes more only once much of what it has is gone, which takes a slow printer longer
    // than the limit: what reaches the printer is progress too.
    const auto left = [this] {
        return m_queue.size() + m_link->endpoint->bytesInSystem().value_or(0);
    };
    m_writeError.clear();
    write();
    StallTimer stall(left(), closeStallLimit);
    while (isOpen() && !m_queue.isEmpty() && !m_writeError && stall.goesOn(left())) {
        startReading();
        runOne(after(deliveryPause));
        m_link->endpoint->renewWrite();
        runReady();
        write();
        m_input.clear();
    }
    if (m_kind == NetworkConnection || !m_queue.isEmpty())
        return;
    while (isOpen() && left() > 0 && stall.goesOn(left()))
        runOne(after(drainPause));
}

// A connection that is closed while its printer still sends unasked status is reset, and what the
// printer has yet to read is thrown away. So its input is read away until it closes its side.
void PrinterConnection::waitForThePrintersEnd()
{
    const auto bytesInSystem = [this] { return m_link->endpoint->bytesInSystem().value_or(0); };
    StallTimer stall(bytesInSystem(), closeStallLimit);
    Deadline silence = after(farCloseLimit);
    while (isOpen() && !hasPassed(silence) && stall.goesOn(bytesInSystem())) {
        startReading();
        runOne(std::min(silence, after(deliveryPause)));
        if (!m_input.empty())
            silence = after(farCloseLimit);
        m_input.clear();
    }
}

// What a driver that never lets go of a cancelled operation may still write to is left behind.
std::error_code PrinterConnection::closeLink()
{
    Link& link = *m_link;
    if (!link.endpoint) {
        m_link.reset();
        return {};
    }
    m_isLost = true; // nothing is started any more
    link.endpoint->cancelAll();
    for (const Deadline end = after(cancelLimit);
         (link.isReading || link.isWriting) && runOne(end);)
        ;
    const std::error_code error = link.endpoint->close();
    if (link.isReading || link.isWriting)
        static_cast<void>(m_link.release());
    m_link.reset();
    m_queue.clear();
    m_input.clear();
    return error;
}

int matchModelReply(const QString& model, const QString& reply)
{
    for (const PrinterModel& known : modelTable())
        if (reply.contains(QLatin1String(known.name), Qt::CaseInsensitive))
            return reply.contains(model, Qt::CaseInsensitive) ? Q7_OK : Q7_ERR_MODEL;
    return Q7_ERR_UNKNOWN_PRINTER;
}

} // namespace q7
