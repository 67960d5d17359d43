// The connection to the printer: opens the link of a kind, checks the printer's model, sends, waits
// and closes.
#pragma once

#include "byte_queue.h"
#include "deadline.h"
#include "printer_bytes.h"
#include "usb_discovery.h"

#include <QString>
#include <functional>
#include <memory>
#include <string>
#include <system_error>

namespace q7
{

class OwnThread; // of guest.h

enum ConnectionKind : int { UsbConnection = 1, SerialConnection = 2, NetworkConnection = 3 };

/** One object serves one open. What an application sends waits in a queue until the printer's link
 *  takes it: the sends of one call leave together, and what a slow printer has not taken when the
 *  call ends goes on being handed over by a thread until the next call begins. */
class PrinterConnection
{
public:
    /** usbSearch: how a model's USB printer is found. */
    explicit PrinterConnection(std::function<UsbSearch(const QString&)> usbSearch = findUsbPrinter);
    ~PrinterConnection();
    PrinterConnection(const PrinterConnection&) = delete;
    PrinterConnection& operator=(const PrinterConnection&) = delete;

    void setKind(int kind) { m_kind = kind; }
    int getKind() const { return m_kind; }

    /** Opens the link and, on serial and TCP links, checks that the printer answers as the model.
     *  address: serial port name, host name or address; ignored for USB.
     *  model: model name in capitals. number: bits per second, TCP port; ignored for USB.
     *  Returns 0; the kind itself when it is none of the three; Q7_ERR_MODEL, _UNKNOWN_PRINTER,
     *  _SERIAL_*, _USB_*, _TCP_PORT, _FAILED; or a positive system or socket error number. A
     *  refused TCP connection is socket error 0. */
    int open(const QString& address, const QString& model, int number);

    /** Until it is closed, a TCP connection was lost or a serial port's device is gone. */
    bool isOpen() const { return m_link != nullptr && !m_isLost; }

    /** A call begins, perhaps in another thread than the last one: the link is the calling thread's. */
    void beginCall();
    /** A call ends: hands over what it sent, and goes on with the rest behind its back. */
    void endCall();

    /** Logs the bytes and takes them for the printer. Returns their count, Q7_ERR_NOT_SENT when
     *  nothing was taken, Q7_ERR_NOT_OPEN, or over USB a positive system error number. Serial ports
     *  and TCP count in a signed 16-bit number: from 32768 bytes in one send on it wraps, and a
     *  wrapped count below 1 reads Q7_ERR_NOT_SENT although the bytes are sent. */
    int send(Bytes bytes);

    /** Hands over what was sent, waiting at most 250 ms. */
    void handOver();

    /** Waits until there is input. */
    bool waitForInput(Deadline deadline);
    /** The input that has come, 64 KB at most; what comes behind them is lost. */
    std::string takeInput();

    /** Delivers what was accepted, within a bound, and closes. Returns 0; Q7_ERR_NOT_OPEN for USB
     *  that is not open; or a positive error number. */
    int close();

private:
    struct Link;

    int openSerialPort(const QString& address, int bitsPerSecond);
    int openNetwork(const QString& host, int port);
    int openUsbPrinter(const QString& model);
    int checkModel(const QString& model);

    int sendUsb(Bytes bytes);
    void write();
    void startWriting();
    void wrote(std::error_code error, std::size_t count);
    void startReading();
    void read(std::error_code error, std::size_t count);
    void linkFailed(std::error_code error);

    void runReady();
    bool runOne(Deadline deadline);
    void handOverAll();
    bool stopHandingOver();

    void deliver();
    void waitForThePrintersEnd();
    std::error_code closeLink();

    std::function<UsbSearch(const QString&)> m_usbSearch;
    int m_kind = 0;
    std::unique_ptr<Link> m_link; // null before the open and behind the close
    bool m_isLost = false;
    unsigned m_forkCount = 0; // of the process that uses the link

    ByteQueue m_queue; // for the printer; what a write under way holds is still part of it
    std::size_t m_flushAt = 0;
    std::size_t m_taken = 0; // bytes that the system took so far
    std::error_code m_writeError;
    // Set while the printer takes nothing: a receipt's hundreds of calls must not wait each.
    bool m_isStalled = false;
    Deadline m_nextTrial = {};

    std::string m_input;
    Deadline m_nextRead = {};
    Deadline m_lastLook = {};

    std::unique_ptr<OwnThread> m_handOver; // null while nothing is left between calls
};

/** What the printer's answer says about the model that was asked for: 0, Q7_ERR_MODEL when it names
 *  another known model first, Q7_ERR_UNKNOWN_PRINTER when it names none. A longer name that
 *  contains the one asked for passes: RANZAPRO answers for RANZA. */
int matchModelReply(const QString& model, const QString& reply);

} // namespace q7
