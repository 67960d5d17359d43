// How fast bytes leave, that none is lost, and what happens when the printer vanishes.

#include "export_fixture.h"

#include <QThread>
#include <algorithm>
#include <arpa/inet.h>
#include <climits>
#include <linux/tcp.h>
#include <thread>

using namespace q7test;

namespace
{

using std::chrono::milliseconds;
using std::chrono::seconds;

/** A receipt of so many lines of 48 columns; what the printer gets is added to `bytes`. */
void printLines(int count, std::string& bytes)
{
    for (int line = 0; line < count; ++line) {
        std::string text = std::to_string(line) + " ARROZ TIPO 1 5KG ";
        text.resize(47, '.');
        text += '\n';
        EXPECT_EQ(48, ImpressaoTexto(text.c_str(), 0, 0, 0));
        bytes += hex("1B 40 1B 74 10") + text;
    }
}

/** Without a log, whose lines cost more than the bytes. */
class Links : public ExportTest
{
protected:
    Links() { data.stopLog(); }
};

// The best of some tries: the machine may be busy, a stall is there each time.
TEST_F(Links, AReceiptArrivesWithin20MillisecondsOfItsFirstByte)
{
    const auto receiptMs = [this] {
        const std::size_t before = farEnd->latest().bytes.size();
        const Clock::time_point start = Clock::now();
        std::string bytes;
        printLines(100, bytes);
        EXPECT_TRUE(sameBytes(bytes, farEnd->waitForBytes(before + bytes.size()).substr(before)));
        return std::chrono::duration<double, std::milli>(farEnd->latest().lastByte - start).count();
    };
    double afterModelCheck = 1e9;
    double afterStatus = 1e9;
    for (int attempt = 0; attempt < 10 && std::max(afterModelCheck, afterStatus) >= 20; ++attempt) {
        farEnd = std::make_unique<TcpPrinter>();
        ASSERT_EQ(0, openOn(*farEnd));
        afterModelCheck = std::min(afterModelCheck, receiptMs());
        ASSERT_EQ(4, StatusImpressora(2));
        afterStatus = std::min(afterStatus, receiptMs());
        FechaConexaoImpressora();
    }
    EXPECT_LT(afterModelCheck, 20);
    EXPECT_LT(afterStatus, 20);
}

/** TCP: how many segments with data this process has sent to that port. */
unsigned segmentsSentTo(int port)
{
    for (int descriptor = 0; descriptor < 1024; ++descriptor) {
        sockaddr_in peer = {};
        socklen_t size = sizeof peer;
        if (getpeername(descriptor, reinterpret_cast<sockaddr*>(&peer), &size) != 0 ||
            ntohs(peer.sin_port) != port)
            continue;
        tcp_info info = {};
        size = sizeof info;
        getsockopt(descriptor, IPPROTO_TCP, TCP_INFO, &info, &size);
        return info.tcpi_data_segs_out;
    }
    return 0;
}

TEST_F(Links, ACallLeavesAsOnePacket)
{
    const std::function<void()> calls[] = {
        [] { ImpressaoTexto("abc\n", 1, 15, 17); },
        [] { ImpressaoQRCode("https://exemplo.com.br", 4, 2); },
        [] { Corte(20); },
    };
    openTcp();
    for (const auto& call : calls) {
        takeSent();
        const unsigned before = segmentsSentTo(farEnd->port());
        call();
        EXPECT_NE("", takeSent());
        EXPECT_EQ(before + 2, segmentsSentTo(farEnd->port())) << "the call's and the mark's";
    }
}

/** Prints so many lines of 53 bytes and closes: the printer, which takes at least so long for them,
 *  gets them all. */
void closeAfter(int lines, FakePrinter& printer, milliseconds leastTime, int unaskedStatusMs = 0)
{
    ASSERT_EQ(0, openOn(printer));
    printer.change([=](PrinterScript& script) { script.unaskedStatusMs = unaskedStatusMs; });
    std::string bytes = hex("1D 49 43");
    printLines(lines, bytes);
    EXPECT_EQ(0, FechaConexaoImpressora());
    EXPECT_TRUE(sameBytes(bytes, printer.waitForClose()));
    const FakePrinter::Record record = printer.latest();
    EXPECT_GE(record.lastByte - record.firstByte, leastTime);
    EXPECT_EQ(unaskedStatusMs != 0, record.sent.size() > 7); // than the model's name
}

// The jobs are larger than what the system's buffers hide, and slow for longer than the 5 s for which
// a printer may stand still.
TEST_F(Links, SerialLosesNothingAt9600Baud)
{
    PrinterScript script;
    script.readBytesPerSecond = 960;
    script.slowBytes = 9000;
    PtyPrinter printer(script);
    closeAfter(800, printer, seconds(8));
}

TEST_F(Links, TcpLosesNothingAt4KilobytesASecond)
{
    PrinterScript script;
    script.readBytesPerSecond = 4096;
    script.slowBytes = 45'000;
    TcpPrinter printer(script);
    closeAfter(8000, printer, seconds(8));
}

// Unread input at the close makes the system reset the connection, and the tail is lost.
TEST_F(Links, TcpLosesNothingWhileThePrinterSendsStatus)
{
    for (const int bytesPerSecond : {1'000'000, 80'000}) {
        PrinterScript script;
        script.readBytesPerSecond = bytesPerSecond;
        TcpPrinter printer(script);
        closeAfter(2500, printer, milliseconds(100), 5);
    }
}

TEST_F(Links, CountsAreSigned16BitNumbers)
{
    openTcp();
    for (const int size : {32767, 32768, 65535, 65536, 70000}) {
        const std::string text(static_cast<std::size_t>(size), 'x');
        const int count = size <= 32767 ? size : size == 70000 ? 70000 - 65536 : -44;
        EXPECT_EQ(count, ImpressaoTexto(text.c_str(), 0, 0, 0)) << size;
        EXPECT_TRUE(sameBytes(hex("1B 40 1B 74 10") + text, takeSent()));
    }
}

TEST_F(Links, APrinterNeverReads)
{
    const PrinterScript script = faultyAt(PrinterScript::Fault::Stall, 3); // the model query
    for (const auto kind : {FakePrinter::Line::Tcp, FakePrinter::Line::Serial}) {
        const FakePrinter printer(script, kind);
        ASSERT_EQ(0, openOn(printer));
        const auto print = [] {
            for (int line = 0; line < 150; ++line)
                EXPECT_EQ(1500, ImpressaoTexto(std::string(1500, 'x').c_str(), 0, 0, 0));
        };
        EXPECT_LT(durationOf(print), seconds(3));
        data.write("log_q7.txt", "");
        EXPECT_LT(durationOf([] { EXPECT_EQ(0, FechaConexaoImpressora()); }), seconds(8));
        EXPECT_EQ(0U, data.takeLog().at(1).find("INFO FECHAMENTO SEM ENTREGAR "));
        data.stopLog();
    }
}

// More line feeds than anyone needs: what waits for a printer is bounded, and so is the time.
TEST_F(Links, AGarbageCountEndsSoon)
{
    const PrinterScript script = faultyAt(PrinterScript::Fault::Stall, 3); // the model query
    const TcpPrinter printer(script);
    ASSERT_EQ(0, openOn(printer));
    ImpressaoTexto(std::string(60 << 20, 'x').c_str(), 0, 0, 0); // most of what may wait
    EXPECT_LT(durationOf([] { EXPECT_EQ(-44, AvancaPapel(INT_MAX)); }), seconds(20));
    EXPECT_EQ(-44, Corte(INT_MAX));
    EXPECT_EQ(-44, ImpressaoTexto("x", 0, 0, 0));
}

// The application prints and goes on with something else.
TEST_F(Links, TailLeavesWithoutFurtherCalls)
{
    PrinterScript script;
    script.readBytesPerSecond = 960;
    script.slowBytes = 4000;
    PtyPrinter printer(script);
    ASSERT_EQ(0, openOn(printer));
    const std::string text(30000, 'x'); // more than the system takes
    EXPECT_EQ(30000, ImpressaoTexto(text.c_str(), 0, 0, 0));
    const std::string all = hex("1D 49 43  1B 40 1B 74 10") + text;
    EXPECT_TRUE(sameBytes(all, printer.waitForBytes(all.size())));
    FechaConexaoImpressora();
}

// NULL and text that is not UTF-8 are among the commands' rows.
TEST_F(Links, HugeTextsOnASmallStack)
{
    openTcp();
    const std::unique_ptr<QThread> thread(QThread::create([] {
        const std::string huge(1'000'000, '1');
        EXPECT_EQ(1'000'000 % 65536, ImpressaoTexto(huge.c_str(), 0, 0, 0));
        EXPECT_EQ(0, ImpressaoQRCode(huge.c_str(), 1, 1));
        EXPECT_EQ(0, ImpressaoCodigoBarras(8, ("{C" + huge).c_str(), 1, 1, 1));
        EXPECT_EQ(0, ImprimeImagemMemoria(huge.c_str(), 1));
        EXPECT_EQ(-3, AbreConexaoImpressora(3, huge.c_str(), huge.c_str(), 1));
    }));
    thread->setStackSize(1024 * 1024); // as Windows gives
    thread->start();
    EXPECT_TRUE(thread->wait(60'000));
}

} // namespace
