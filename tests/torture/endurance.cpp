// Receipts of all kinds over all links, one behind the other, with openings and losses mixed in:
//
//   q7_endurance SECONDS
//
// What the process holds, and what a receipt takes, must be the same in the last tenth of the time
// as in the first.

#include "fake_printer.h"
#include "own_resources.h"
#include "printer_session.h"
#include "q7_impressora.h"
#include "sample_receipts.h"

#include <algorithm>
#include <array>
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <memory>
#include <optional>
#include <random>

using namespace q7test;

namespace
{

using Clock = std::chrono::steady_clock;
using Fault = PrinterScript::Fault;
using Line = FakePrinter::Line;

constexpr long mostGrowthKib = 512;
constexpr double mostSlowdown = 1.5;
constexpr int losesOneIn = 40;
constexpr std::chrono::milliseconds ending(200);

/** A USB printer whose device is a terminal: found without the system's tree of devices. */
int openUsb(const FakePrinter& printer)
{
    q7::PrinterSession& session = q7::session();
    session.connection = std::make_unique<q7::PrinterConnection>([&](const QString&) {
        return q7::UsbSearch{Q7_OK, QString::fromStdString(printer.serialPath())};
    });
    session.connection->setKind(q7::UsbConnection);
    const int result = session.connection->open({}, "VANTA", 0);
    session.escreverLer = std::make_unique<q7::EscreverLer>(*session.connection);
    return result;
}

/** The processor's time that this thread has had: the machine may be busy with other things. */
double ownTimeMs()
{
    timespec now = {};
    ::clock_gettime(CLOCK_THREAD_CPUTIME_ID, &now);
    return static_cast<double>(now.tv_sec) * 1e3 + static_cast<double>(now.tv_nsec) / 1e6;
}

/** One link with its printer, on which a few receipts are printed before it is made anew. */
class Till
{
public:
    Till(int kind, Fault fault, std::size_t atByte)
        : m_printer(faultyAt(fault, atByte), kind == 3 ? Line::Tcp : Line::Serial,
                    FakePrinter::Keep::Nothing),
          m_opened(kind == 1 ? openUsb(m_printer) : openOn(m_printer))
    {
    }
    ~Till() { FechaConexaoImpressora(); }
    Till(const Till&) = delete;
    Till& operator=(const Till&) = delete;

    bool isOpen() const { return m_opened == Q7_OK; }

private:
    FakePrinter m_printer;
    int m_opened;
};

/** What one tenth of the time was like. */
struct Tenth {
    OwnResources atItsEnd = {0, 0};
    long memoryKib = 0;
    // By kind of receipt, the latest that were not hurt: no memory of ours may grow with the time.
    std::array<std::array<double, 4096>, 4> receiptMs = {};
    std::array<std::size_t, 4> receipts = {};

    void add(std::size_t kind, double ms)
    {
        receiptMs[kind][receipts[kind]++ % receiptMs[kind].size()] = ms;
    }

    double medianMs(std::size_t kind)
    {
        const std::size_t count = std::min(receipts[kind], receiptMs[kind].size());
        const auto middle = receiptMs[kind].begin() + static_cast<std::ptrdiff_t>(count / 2);
        std::nth_element(receiptMs[kind].begin(), middle,
                         receiptMs[kind].begin() + static_cast<std::ptrdiff_t>(count));
        return *middle;
    }
};

} // namespace

int main(int argc, char** argv)
{
    if (argc != 2)
        return 2;
    const auto tenthOfTime = std::chrono::milliseconds(100 * std::atol(argv[1]));
    std::mt19937 random(1);
    const auto upTo = [&random](int most) {
        return std::uniform_int_distribution<int>(0, most)(random);
    };
    long receipts = 0;
    long losses = 0;
    Tenth first;
    Tenth last;
    for (int number = 0; number < 10; ++number) {
        Tenth& tenth = number == 0 ? first : last;
        tenth.receipts = {};
        for (const auto end = Clock::now() + tenthOfTime; Clock::now() < end;) {
            const bool isLost = upTo(losesOneIn - 1) == 0;
            const int kind = 1 + upTo(2);
            constexpr Fault ways[] = {Fault::Close, Fault::Reset, Fault::Garbage, Fault::Babble};
            const Fault fault = !isLost ? Fault::None : kind == 3 ? ways[upTo(3)] : Fault::Close;
            // The model's query has three bytes, and a terminal that goes takes its answer with it.
            const auto atByte = 4U + static_cast<unsigned>(upTo(2000));
            std::optional<Till> till;
            // A busy machine may keep a printer from answering in time; not three.
            for (int attempt = 0; attempt < 3 && !(till && till->isOpen()); ++attempt)
                till.emplace(kind, fault, atByte);
            if (!till->isOpen()) {
                std::printf("FINDING: link %d does not open\n", kind);
                return 1;
            }
            losses += isLost;
            for (int line = upTo(8); line >= 0; --line, ++receipts) {
                const auto which = static_cast<std::size_t>(upTo(3));
                const double start = ownTimeMs();
                const int result = sampleReceipts()[which].print();
                const double tookMs = ownTimeMs() - start;
                if (!isLost && result != 0) {
                    std::printf("FINDING: a receipt over link %d gives %d\n", kind, result);
                    return 1;
                }
                if (!isLost)
                    tenth.add(which, tookMs);
            }
        }
        std::this_thread::sleep_for(ending); // a thread that was told to end takes its time
        tenth.atItsEnd = OwnResources();
        tenth.memoryKib = residentKib();
    }

    std::printf("%ld receipts, %ld losses; first and last tenth: %ld and %ld KiB, %ld and %ld "
                "descriptors, %ld and %ld threads\n",
                receipts, losses, first.memoryKib, last.memoryKib, first.atItsEnd.descriptors,
                last.atItsEnd.descriptors, first.atItsEnd.threads, last.atItsEnd.threads);
    bool isFlat =
        last.memoryKib - first.memoryKib <= mostGrowthKib && last.atItsEnd == first.atItsEnd;
    for (std::size_t kind = 0; kind < sampleReceipts().size(); ++kind) {
        std::printf("%s: %.3f and %.3f ms\n", sampleReceipts()[kind].name, first.medianMs(kind),
                    last.medianMs(kind));
        isFlat = isFlat && last.medianMs(kind) <= mostSlowdown * first.medianMs(kind);
    }
    if (!isFlat)
        std::printf("FINDING: not flat\n");
    return isFlat ? 0 : 1;
}
