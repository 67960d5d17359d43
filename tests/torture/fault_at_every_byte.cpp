// Lets a link fail at each byte of each kind of receipt, in each way that links fail.
//
//   q7_fault_at_every_byte --cases N      a sample of so many
//   q7_fault_at_every_byte --seconds N    as many as there is time for, all of them at most
//   q7_fault_at_every_byte --only CASE    one, as a finding names it
//
// With --told COMMAND behind it, TCP alone: the calls are made by a program of its own, which the
// shell runs by that command (till.h); what it prints is held against what this process prints.
//
// Most of the time is waiting for printers that stand still, so cases run side by side in processes
// of their own. Ends with 1 at the first finding.

#include "till.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <map>
#include <memory>
#include <random>
#include <stdexcept>
#include <sys/wait.h>
#include <unistd.h>

using namespace q7test;

namespace
{

using Clock = std::chrono::steady_clock;
using Fault = PrinterScript::Fault;
using Line = FakePrinter::Line;
using Keep = FakePrinter::Keep;
using std::chrono::milliseconds;
using std::chrono::seconds;

constexpr int ownWorkers = Q7_WORKERS;
constexpr int toldWorkers = 4;
constexpr std::size_t modelQuery = 3; // bytes before the receipt's
// What is stated, and some for a busy machine: a hand-over of 250 ms; a status of 250 ms before and
// 1500 ms behind its question; a close of 5 s for bytes that stand still and 500 ms for the far end.
constexpr milliseconds printLimit(1500);
constexpr milliseconds statusLimit(4000);
constexpr milliseconds closeLimit(8500);

const std::pair<const char*, Fault> faults[] = {
    {"closed", Fault::Close},  {"reset", Fault::Reset},     {"half-closed", Fault::HalfClose},
    {"stalled", Fault::Stall}, {"garbage", Fault::Garbage}, {"endless", Fault::Babble}};

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
        return fault == Fault::Close || fault == Fault::Reset || fault == Fault::HalfClose;
    }
};

void expect(bool holds, const std::string& what)
{
    if (!holds)
        throw std::runtime_error(what);
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

/** A new printer on which the till has a link. A busy machine may keep one from answering in time;
 *  not three. */
template <typename... How> std::unique_ptr<FakePrinter> openedPrinter(Till& till, How... how)
{
    for (int attempt = 0; attempt < 3; ++attempt) {
        auto printer = std::make_unique<FakePrinter>(how...);
        if (till.open(*printer) == 0)
            return printer;
    }
    throw std::runtime_error("a link does not open");
}

/** The bytes of the receipt, the model's question before it, over a link that does no harm. */
std::string printedWell(Till& till, const SampleReceipt& receipt)
{
    const auto printer = openedPrinter(till, PrinterScript(), Line::Tcp, Keep::All);
    // Which copy of an offline note comes next survives the link: two leave it as it was.
    expect(till.print(receipt) == 0, "the next receipt is not printed");
    expect(till.close() == 0, "a sound link does not close");
    return printer->waitForClose();
}

/** As this process prints it. */
const std::string& reference(const SampleReceipt& receipt)
{
    static std::map<const SampleReceipt*, std::string> known;
    std::string& bytes = known[&receipt];
    if (bytes.empty())
        bytes = printedWell(*ownTill(), receipt);
    return bytes;
}

void suffer(Till& till, const Case& now)
{
    const std::string& expected = reference(*now.receipt);
    till.look();
    {
        const auto printer =
            openedPrinter(till, faultyAt(now.fault, now.atByte), now.line, Keep::Nothing);
        const int printed =
            within(printLimit, "the receipt", [&] { return till.print(*now.receipt); });
        expect(printed == 0 || (printed < 0 && now.endsTheLink()),
               "the receipt gives " + std::to_string(printed));
        expect(printer->waitForFault(), "the fault never comes");
        if (now.endsTheLink()) {
            // A call right behind another one takes its word for the link's state.
            ::usleep(2000);
            const int next = within(printLimit, "the next call", [&] { return till.printText(); });
            expect(next == -4, "behind the loss a call gives " + std::to_string(next));
        }
        const int status = within(statusLimit, "the status", [&] { return till.status(); });
        expect(now.endsTheLink() ? status == -4 : status == 3 || status == 4 || status == -81,
               "the status gives " + std::to_string(status));
        const int closed = within(closeLimit, "the close", [&] { return till.close(); });
        expect(closed == (now.endsTheLink() ? -4 : 0), "the close gives " + std::to_string(closed));
    }
    const std::string next = printedWell(till, *now.receipt);
    expect(next == expected, "the next receipt differs");
    expect(till.isAsBefore(), "descriptors or threads are left behind");
}

std::vector<Case> allCases(bool areTold)
{
    std::vector<Case> cases;
    for (const SampleReceipt& receipt : sampleReceipts())
        for (const Line line : {Line::Tcp, Line::Serial})
            for (const auto& [name, fault] : faults)
                if (line == Line::Tcp ||
                    (!areTold && fault != Fault::Reset && fault != Fault::HalfClose))
                    // A terminal takes its answer with it: that one never opens.
                    for (std::size_t at =
                             modelQuery + (line == Line::Serial && fault == Fault::Close);
                         at <= reference(receipt).size(); ++at)
                        cases.push_back({line, name, fault, &receipt, at});
    return cases;
}

struct Campaign {
    std::vector<Case> cases;
    Clock::time_point end = Clock::time_point::max();
    std::string toldCommand; // empty: this program makes the calls
    std::string again;       // how it is run for one case, which is to follow
    int workers = 0;
};

/** Runs the cases of one process; returns how many there were, or -1 behind a finding. */
long work(const Campaign& campaign, int worker)
{
    const std::vector<Case>& cases = campaign.cases;
    long count = 0;
    std::string now = "the beginning";
    try {
        const std::unique_ptr<Till> till =
            campaign.toldCommand.empty() ? ownTill() : toldTill(campaign.toldCommand);
        if (!campaign.toldCommand.empty())
            for (const SampleReceipt& receipt : sampleReceipts())
                expect(printedWell(*till, receipt) == reference(receipt), "prints otherwise");
        for (auto i = static_cast<std::size_t>(worker);
             i < cases.size() && Clock::now() < campaign.end;
             i += static_cast<std::size_t>(campaign.workers), ++count) {
            now = cases[i].name();
            suffer(*till, cases[i]);
        }
    } catch (const std::exception& finding) {
        std::printf("FINDING in %s: %s\nagain: %s %s\n", now.c_str(), finding.what(),
                    campaign.again.c_str(), now.c_str());
        return -1;
    }
    return count;
}

} // namespace

int main(int argc, char** argv)
{
    Campaign campaign;
    if (argc == 5 && std::string(argv[3]) == "--told")
        campaign.toldCommand = argv[4];
    else if (argc != 3)
        return 2;
    const std::string what = argv[1];
    // The library has no link while the processes are made.
    std::vector<Case>& cases = campaign.cases;
    cases = allCases(!campaign.toldCommand.empty());
    const std::size_t all = cases.size();
    std::shuffle(cases.begin(), cases.end(), std::mt19937(std::random_device()()));
    if (what == "--only")
        cases.erase(std::remove_if(cases.begin(), cases.end(),
                                   [&](const Case& one) { return one.name() != argv[2]; }),
                    cases.end());
    else if (what == "--cases")
        cases.resize(std::min(all, std::size_t(std::atol(argv[2]))), cases.front());
    else
        campaign.end = Clock::now() + seconds(std::atol(argv[2]));
    campaign.workers = campaign.toldCommand.empty() ? ownWorkers : toldWorkers;
    campaign.again = std::string(argv[0]) + " --only";

    int results[2] = {};
    if (::pipe(results) != 0)
        return 2;
    for (int worker = 0; worker < campaign.workers; ++worker) {
        if (::fork() != 0)
            continue;
        const long count = work(campaign, worker);
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
    std::printf("%ld of %zu faults suffered\n", total, all);
    return isSound && total > 0 ? 0 : 1;
}
