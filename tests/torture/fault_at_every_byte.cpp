// Lets a link fail at each byte of each kind of receipt, in each way that links fail.
//
//   q7_fault_at_every_byte --cases N      a sample of so many
//   q7_fault_at_every_byte --seconds N    as many as there is time for, all of them at most
//   q7_fault_at_every_byte --only CASE    one, as a finding names it
//
// Most of the time is waiting for printers that stand still, so cases run side by side in processes
// of their own. Ends with 1 at the first finding.

#include "hostile_printer.h"
#include "own_resources.h"
#include "q7_impressora.h"
#include "sample_receipts.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <map>
#include <memory>
#include <random>
#include <sys/wait.h>
#include <unistd.h>

using namespace q7test;

namespace
{

using Clock = std::chrono::steady_clock;
using Line = HostilePrinter::Line;
using std::chrono::milliseconds;
using std::chrono::seconds;

constexpr int workers = 24;
constexpr std::size_t modelQuery = 3; // bytes before the receipt's
// What is stated, and some for a busy machine: a hand-over of 250 ms; a status of 250 ms before and
// 1500 ms behind its question; a close of 5 s for bytes that stand still and 500 ms for the far end.
constexpr milliseconds printLimit(1500);
constexpr milliseconds statusLimit(4000);
constexpr milliseconds closeLimit(8500);

const std::pair<const char*, Fault> faults[] = {
    {"closed", Fault::Closed},   {"reset", Fault::Reset},     {"half-closed", Fault::HalfClosed},
    {"stalled", Fault::Stalled}, {"garbage", Fault::Garbage}, {"endless", Fault::Endless}};

struct Case {
    Line line;
    const char* faultName;
    Fault fault;
    const SampleReceipt* receipt;
    std::size_t atByte; // of the connection

    std::string name() const
    {
        return std::string(line == Line::Tcp ? "tcp:" : "terminal:") + faultName + ':' +
               receipt->name + ':' + std::to_string(atByte);
    }
    bool endsTheLink() const
    {
        return fault == Fault::Closed || fault == Fault::Reset || fault == Fault::HalfClosed;
    }
};

/** What was wrong; thrown. */
struct Finding {
    std::string what;
};

void expect(bool holds, const std::string& what)
{
    if (!holds)
        throw Finding{what};
}

/** Calls, and holds the call to its time. */
template <typename Call> int within(milliseconds limit, const char* what, Call call)
{
    const Clock::time_point start = Clock::now();
    const int result = call();
    const auto tookMs = std::chrono::duration_cast<milliseconds>(Clock::now() - start).count();
    expect(tookMs <= limit.count(), std::string(what) + " took " + std::to_string(tookMs) + " ms");
    return result;
}

/** The bytes of the receipt, the model's question before it, over a link that does no harm. */
std::string printedWell(const SampleReceipt& receipt)
{
    HostilePrinter printer(Line::Tcp, HostilePrinter::Keep::Bytes);
    expect(openOn(printer) == 0, "a new link does not open");
    // Which copy of an offline note comes next survives the link: two leave it as it was.
    expect(receipt.print() == 0, "the next receipt is not printed");
    expect(FechaConexaoImpressora() == 0, "a sound link does not close");
    return printer.waitForClose();
}

const std::string& reference(const SampleReceipt& receipt)
{
    static std::map<const SampleReceipt*, std::string> known;
    std::string& bytes = known[&receipt];
    if (bytes.empty())
        bytes = printedWell(receipt);
    return bytes;
}

void suffer(const Case& now)
{
    const std::string& expected = reference(*now.receipt);
    const OwnResources before;
    {
        HostilePrinter printer(now.line, HostilePrinter::Keep::Nothing, now.fault, now.atByte);
        expect(openOn(printer) == 0, "does not open");
        const int printed = within(printLimit, "the receipt", [&] { return now.receipt->print(); });
        expect(printed == 0 || (printed < 0 && now.endsTheLink()),
               "the receipt gives " + std::to_string(printed));
        expect(printer.waitForFault(), "the fault never comes");
        if (now.endsTheLink()) {
            // A call right behind another one takes its word for the link's state.
            ::usleep(2000);
            const int next =
                within(printLimit, "the next call", [] { return ImpressaoTexto("x", 0, 0, 0); });
            expect(next == -4, "behind the loss a call gives " + std::to_string(next));
        }
        const int status = within(statusLimit, "the status", [] { return StatusImpressora(2); });
        expect(now.endsTheLink() ? status == -4 : status == 3 || status == 4 || status == -81,
               "the status gives " + std::to_string(status));
        const int closed = within(closeLimit, "the close", [] { return FechaConexaoImpressora(); });
        expect(closed == (now.endsTheLink() ? -4 : 0), "the close gives " + std::to_string(closed));
    }
    const std::string next = printedWell(*now.receipt);
    expect(next == expected, "the next receipt differs");
    expect(before.comeBack(), "descriptors or threads are left behind");
}

std::vector<Case> allCases()
{
    std::vector<Case> cases;
    for (const SampleReceipt& receipt : sampleReceipts())
        for (const Line line : {Line::Tcp, Line::Terminal})
            for (const auto& [name, fault] : faults)
                if (line == Line::Tcp || (fault != Fault::Reset && fault != Fault::HalfClosed))
                    for (std::size_t at = modelQuery; at <= reference(receipt).size(); ++at)
                        cases.push_back({line, name, fault, &receipt, at});
    return cases;
}

/** Runs the cases of one process; returns how many there were, or -1 behind a finding. */
long work(const std::vector<Case>& cases, int worker, Clock::time_point end, const char* program)
{
    long count = 0;
    for (std::size_t i = static_cast<std::size_t>(worker); i < cases.size() && Clock::now() < end;
         i += workers, ++count) {
        try {
            suffer(cases[i]);
        } catch (const Finding& finding) {
            std::printf("FINDING in %s: %s\nagain: %s --only %s\n", cases[i].name().c_str(),
                        finding.what.c_str(), program, cases[i].name().c_str());
            return -1;
        }
    }
    return count;
}

} // namespace

int main(int argc, char** argv)
{
    std::vector<Case> cases;
    Clock::time_point end = Clock::time_point::max();
    {
        // The library has no link while the processes are made.
        cases = allCases();
    }
    if (argc != 3)
        return 2;
    const std::string what = argv[1];
    std::shuffle(cases.begin(), cases.end(), std::mt19937(std::random_device()()));
    if (what == "--only")
        cases.erase(std::remove_if(cases.begin(), cases.end(),
                                   [&](const Case& one) { return one.name() != argv[2]; }),
                    cases.end());
    else if (what == "--cases")
        cases.resize(std::min(cases.size(), std::size_t(std::atol(argv[2]))), cases.front());
    else
        end = Clock::now() + seconds(std::atol(argv[2]));

    int results[2] = {};
    if (::pipe(results) != 0)
        return 2;
    for (int worker = 0; worker < workers; ++worker) {
        if (::fork() != 0)
            continue;
        const long count = work(cases, worker, end, argv[0]);
        std::fflush(stdout);
        static_cast<void>(!::write(results[1], &count, sizeof count));
        ::_exit(count < 0 ? 1 : 0);
    }
    ::close(results[1]);
    long total = 0;
    bool isSound = true;
    for (long count = 0; ::read(results[0], &count, sizeof count) == sizeof count;) {
        isSound = isSound && count >= 0;
        total += std::max(count, 0L);
    }
    for (int status = 0; ::wait(&status) > 0;)
        isSound = isSound && WIFEXITED(status) && WEXITSTATUS(status) == 0;
    std::printf("%ld of %zu faults suffered\n", total, cases.size());
    return isSound && total > 0 ? 0 : 1;
}
