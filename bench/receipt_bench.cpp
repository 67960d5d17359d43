// What receipts cost the calling thread, over a loopback connection: CPU is the figure to read.
//
// Beside the receipt stands its floor: the same writes one by one, with a look for the log file
// before each printed line, and with the log on the file opened, appended to and closed for each
// line of the log. Their ratio is what the library adds.

#include "documents.h"
#include "loopback_sink.h"
#include "q7_impressora.h"

#include <benchmark/benchmark.h>
#include <cstdio>
#include <cstdlib>
#include <fcntl.h>
#include <filesystem>
#include <fstream>
#include <netinet/in.h>
#include <netinet/tcp.h>
#include <sstream>
#include <sys/socket.h>
#include <unistd.h>
#include <vector>

namespace
{

/** The data folder of this run, in which the log is switched on and off. */
class DataFolder
{
public:
    DataFolder()
    {
        char name[] = "/tmp/q7_bench_XXXXXX";
        m_path = ::mkdtemp(name);
        ::setenv("Q7_DATA_PATH", m_path.c_str(), 1);
    }
    ~DataFolder() { std::filesystem::remove_all(m_path); }
    DataFolder(const DataFolder&) = delete;
    DataFolder& operator=(const DataFolder&) = delete;

    std::string logPath() const { return m_path + "/log_q7.txt"; }
    void switchLog(bool on) const
    {
        std::filesystem::remove(logPath());
        if (on)
            std::ofstream(logPath()).flush();
    }

private:
    std::string m_path;
};

const DataFolder dataFolder;

/** A printer that the library is connected to, with the log on or off. */
class ConnectedPrinter
{
public:
    explicit ConnectedPrinter(bool withLog)
    {
        dataFolder.switchLog(withLog);
        if (AbreConexaoImpressora(3, "VANTA", "127.0.0.1", m_sink.port()) != 0)
            std::abort();
    }
    ~ConnectedPrinter() { FechaConexaoImpressora(); }
    ConnectedPrinter(const ConnectedPrinter&) = delete;
    ConnectedPrinter& operator=(const ConnectedPrinter&) = delete;

private:
    LoopbackSink m_sink;
};

constexpr int receiptLines = 100;

void printReceipt()
{
    ImpressaoTexto("PADARIA FLOR DO IPÊ\n", 1, 8, 17);
    ImpressaoTexto("Avenida Coronel Juvêncio, 1990 - Centro\n", 1, 1, 0);
    for (int line = 2; line < receiptLines; ++line)
        ImpressaoTexto("001 7891000315507 CAFÉ TORRADO E MOÍDO 500G    2 UN x 17,49 34,98\n", 0, 1,
                       0);
    ImpressaoCodigoBarras(8, "{C35240163422739000101590009234185487931508973", 50, 2, 4);
    ImpressaoQRCode("https://www.nfce.fazenda.sp.gov.br/qrcode?p=352401634227390001015900", 4, 2);
    Corte(4);
}

/** What one receipt sends and logs. */
struct ReceiptRecord {
    std::vector<std::string> sends;
    std::vector<std::string> logLines; // with their line ends
};

ReceiptRecord recordReceipt()
{
    {
        const ConnectedPrinter printer(true);
        dataFolder.switchLog(true); // without the opening
        printReceipt();
        std::filesystem::copy_file(dataFolder.logPath(), dataFolder.logPath() + ".receipt",
                                   std::filesystem::copy_options::overwrite_existing);
    }
    std::ostringstream log;
    log << std::ifstream(dataFolder.logPath() + ".receipt").rdbuf();
    const std::string text = log.str();
    ReceiptRecord record;
    const std::string tag = "[COMANDOSENVIADOS].....[";
    const std::string lineEnd = "]\n"; // messages have line feeds of their own
    for (std::size_t begin = 0; begin < text.size();) {
        const std::size_t end = std::min(text.find(lineEnd + '[', begin), text.size() - 2);
        const std::string line = text.substr(begin, end - begin);
        record.logLines.push_back(line + lineEnd);
        begin = end + lineEnd.size();
        const std::size_t start = line.find(tag);
        if (start == std::string::npos)
            continue;
        std::string bytes;
        for (std::size_t digit = start + tag.size(); digit + 1 < line.size(); digit += 2)
            bytes += static_cast<char>(std::stoi(line.substr(digit, 2), nullptr, 16));
        record.sends.push_back(bytes);
    }
    return record;
}

void receipt(benchmark::State& state, bool withLog)
{
    const ConnectedPrinter printer(withLog);
    for (auto _ : state)
        printReceipt();
}

void sale(benchmark::State& state, bool withLog)
{
    const std::string xml = saleXml(static_cast<int>(state.range(0)));
    const ConnectedPrinter printer(withLog);
    for (auto _ : state)
        ImprimeXMLSAT(xml.c_str(), 0);
}

void note(benchmark::State& state, bool withLog)
{
    const std::string xml = noteXml(static_cast<int>(state.range(0)));
    const ConnectedPrinter printer(withLog);
    for (auto _ : state)
        if (ImprimeXMLNFCe(xml.c_str(), 1, "", 0) != 0)
            std::abort();
}

/** As an operator's own program would: the log can be moved away between two lines. */
void appendToLog(const std::string& path, const std::string& line)
{
    const int file = ::open(path.c_str(), O_WRONLY | O_APPEND | O_CLOEXEC);
    benchmark::DoNotOptimize(::write(file, line.data(), line.size()));
    ::close(file);
}

void rawWrites(benchmark::State& state, bool withLog)
{
    const ReceiptRecord record = recordReceipt();
    dataFolder.switchLog(withLog);
    const LoopbackSink sink;
    const int link = ::socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0);
    sockaddr_in address = {};
    address.sin_family = AF_INET;
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    address.sin_port = htons(static_cast<in_port_t>(sink.port()));
    if (::connect(link, reinterpret_cast<sockaddr*>(&address), sizeof address) != 0)
        std::abort();
    const int noDelay = 1;
    ::setsockopt(link, IPPROTO_TCP, TCP_NODELAY, &noDelay, sizeof noDelay);
    const std::string logPath = dataFolder.logPath();
    const std::size_t sendsPerLine = record.sends.size() / receiptLines;
    for (auto _ : state) {
        for (std::size_t index = 0; index < record.sends.size(); ++index) {
            if (index % sendsPerLine == 0 && (::access(logPath.c_str(), F_OK) == 0) != withLog)
                std::abort();
            benchmark::DoNotOptimize(
                ::send(link, record.sends[index].data(), record.sends[index].size(), MSG_NOSIGNAL));
        }
        if (withLog)
            for (const std::string& line : record.logLines)
                appendToLog(logPath, line);
    }
    state.counters["sends"] = static_cast<double>(record.sends.size());
    state.counters["lines"] = static_cast<double>(record.logLines.size());
    ::close(link);
}

void forItemCounts(benchmark::internal::Benchmark* measured)
{
    measured->Arg(1)->Arg(10)->Arg(100)->Arg(990)->Unit(benchmark::kMicrosecond);
}

} // namespace

BENCHMARK_CAPTURE(rawWrites, off, false)->Name("RawWrites/log_off")->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(rawWrites, on, true)->Name("RawWrites/log_on")->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(receipt, off, false)->Name("Receipt/log_off")->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(receipt, on, true)->Name("Receipt/log_on")->Unit(benchmark::kMicrosecond);

BENCHMARK_CAPTURE(sale, off, false)->Name("Sale/log_off")->Apply(forItemCounts);
BENCHMARK_CAPTURE(sale, on, true)->Name("Sale/log_on")->Apply(forItemCounts);
BENCHMARK_CAPTURE(note, off, false)->Name("Note/log_off")->Apply(forItemCounts);
BENCHMARK_CAPTURE(note, on, true)->Name("Note/log_on")->Apply(forItemCounts);

BENCHMARK_MAIN();
