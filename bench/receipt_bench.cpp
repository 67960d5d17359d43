// What receipts cost the calling thread, over a loopback connection: CPU is the figure to read.
//
// Receipt/log_off stands beside RawWrites, which makes the same writes one by one and looks for the
// log file before each line: their ratio is what the library adds.

#include "documents.h"
#include "loopback_sink.h"
#include "q7_impressora.h"

#include <benchmark/benchmark.h>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <netinet/in.h>
#include <netinet/tcp.h>
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

/** The sends of one receipt, as the log records them. */
std::vector<std::string> receiptSends()
{
    {
        const ConnectedPrinter printer(true);
        printReceipt();
    }
    std::vector<std::string> sends;
    std::ifstream log(dataFolder.logPath());
    const std::string tag = "[COMANDOSENVIADOS].....[";
    for (std::string line; std::getline(log, line);) {
        const std::size_t start = line.find(tag);
        if (start == std::string::npos)
            continue;
        std::string bytes;
        for (std::size_t digit = start + tag.size(); digit + 1 < line.size() - 1; digit += 2)
            bytes += static_cast<char>(std::stoi(line.substr(digit, 2), nullptr, 16));
        sends.push_back(bytes);
    }
    return sends;
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

void rawWrites(benchmark::State& state)
{
    const std::vector<std::string> sends = receiptSends();
    dataFolder.switchLog(false);
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
    const std::size_t sendsPerLine = sends.size() / receiptLines;
    for (auto _ : state)
        for (std::size_t index = 0; index < sends.size(); ++index) {
            if (index % sendsPerLine == 0 && ::access(logPath.c_str(), F_OK) == 0)
                std::abort();
            benchmark::DoNotOptimize(
                ::send(link, sends[index].data(), sends[index].size(), MSG_NOSIGNAL));
        }
    state.counters["sends"] = static_cast<double>(sends.size());
    ::close(link);
}

void forItemCounts(benchmark::internal::Benchmark* measured)
{
    measured->Arg(1)->Arg(10)->Arg(100)->Arg(990)->Unit(benchmark::kMicrosecond);
}

} // namespace

BENCHMARK(rawWrites)->Name("RawWrites")->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(receipt, off, false)->Name("Receipt/log_off")->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(receipt, on, true)->Name("Receipt/log_on")->Unit(benchmark::kMicrosecond);

BENCHMARK_CAPTURE(sale, off, false)->Name("Sale/log_off")->Apply(forItemCounts);
BENCHMARK_CAPTURE(sale, on, true)->Name("Sale/log_on")->Apply(forItemCounts);
BENCHMARK_CAPTURE(note, off, false)->Name("Note/log_off")->Apply(forItemCounts);
BENCHMARK_CAPTURE(note, on, true)->Name("Note/log_on")->Apply(forItemCounts);

BENCHMARK_MAIN();
