// The connection to the printer: opens the link of a kind, checks the printer's model, sends.
#pragma once

#include "link.h"
#include "usb_discovery.h"

#include <QByteArray>
#include <QString>
#include <memory>

namespace q7
{

enum ConnectionKind : int { UsbConnection = 1, SerialConnection = 2, NetworkConnection = 3 };

/** How long a printer may take to begin its reply, and the reply to end. */
constexpr int replyTimeoutMs = 1500;

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

    /** A TCP link is open while its socket is connected, the others from open to close. */
    bool isOpen() const;

    /** Logs the bytes and hands them to the link; see Link::send. */
    int send(const QByteArray& bytes);

    void handOver();
    void beginCall();
    void endCall();
    bool waitReadable();
    void discardInput();
    QByteArray readReply(int timeoutMs, const ReplyIsWhole& isWhole);

    /** Returns 0; Q7_ERR_NOT_OPEN for USB; Q7_ERR_FAILED; over USB a positive error number. */
    int close();

private:
    int openSerial(const QString& address, const QString& model, int bitsPerSecond);
    int openNetwork(const QString& host, const QString& model, int port);
    int openUsb(const QString& model);
    int keepIfModelAnswers(std::unique_ptr<Link> link, const QString& model);

    std::function<UsbSearch(const QString&)> m_usbSearch;
    std::unique_ptr<Link> m_link;
    int m_kind = 0;
};

/** What the printer's answer says about the model that was asked for: 0, Q7_ERR_MODEL when it names
 *  another known model first, Q7_ERR_UNKNOWN_PRINTER when it names none. A longer name that
 *  contains the one asked for passes: RANZAPRO answers for RANZA. */
int matchModelReply(const QString& model, const QString& reply);

} // namespace q7
