// Memory that is at its end, at each allocation of each kind of call in turn: the call says so, or
// prints every byte.

#include "export_fixture.h"
#include "own_resources.h"
#include "sample_receipts.h"

#include <cerrno>
#include <cstdlib>
#include <functional>

extern "C" {
void* __libc_malloc(std::size_t size);
void* __libc_calloc(std::size_t count, std::size_t size);
void* __libc_realloc(void* block, std::size_t size);
}

namespace
{

// How many allocations this thread still gets; negative: as many as it likes.
thread_local long allocationsLeft = -1;
// How many fail from then on: one, or all until the call has ended.
thread_local long allocationsFailed = 0;

bool mayAllocate()
{
    if (allocationsLeft < 0)
        return true;
    if (allocationsLeft > 0) {
        --allocationsLeft;
        return true;
    }
    if (allocationsFailed > 0) {
        --allocationsFailed;
        errno = ENOMEM;
        return false;
    }
    return true;
}

} // namespace

// In place of the system's, for the library's calls as well; operator new rests on them.
extern "C" void* malloc(std::size_t size)
{
    return mayAllocate() ? __libc_malloc(size) : nullptr;
}
extern "C" void* calloc(std::size_t count, std::size_t size)
{
    return mayAllocate() ? __libc_calloc(count, size) : nullptr;
}
extern "C" void* realloc(void* block, std::size_t size)
{
    return mayAllocate() ? __libc_realloc(block, size) : nullptr;
}

using namespace q7test;

namespace
{

// Receipts have thousands of allocations: every so many of them suffice for a quick look.
long strideOf(std::size_t bytes)
{
    return std::getenv("Q7_TORTURE_ALL") != nullptr || bytes < 500 ? 1 : 37;
}

struct Row {
    const char* name;
    std::function<int()> call;
    int success;
};

#define CALL(call) #call, [] { return call; }

const Row rows[] = {
    {CALL(ImpressaoTexto("ação\n", 1, 8, 17)), 5},
    {CALL(ImpressaoQRCode("https://exemplo.com.br", 4, 2)), 0},
    {CALL(ImpressaoCodigoBarras(8, "{C0123456789", 80, 2, 2)), 0},
    {CALL(Corte(2)), 0},
    {CALL(StatusImpressora(2)), 4},
    {CALL(PrintText(nullptr, "ação\n", 1, 8, 17)), 5},
    {CALL(PrtCutPaper(nullptr, 2)), 0},
    {"a sale", [] { return sampleReceipts()[0].print(); }, 0},
    {"a cancellation", [] { return sampleReceipts()[1].print(); }, 0},
    {"a note", [] { return sampleReceipts()[2].print(); }, 0},
    // No offline note: which of its copies comes next outlives a failure.
};

class FailingMemory : public ExportTest, public testing::WithParamInterface<Row>
{
};

TEST_P(FailingMemory, NoHalfPassesForAWhole)
{
    const Row& row = GetParam();
    for (const bool isLogged : {true, false}) {
        if (!isLogged)
            data.stopLog();
        for (const long failures : {1L, 1'000'000L}) {
            openTcp();
            ASSERT_EQ(row.success, row.call());
            const std::string whole = takeSent();
            for (long allocation = 0;; allocation += strideOf(whole.size())) {
                ASSERT_LT(allocation, 200'000);
                allocationsLeft = allocation;
                allocationsFailed = failures;
                const int result = row.call();
                const bool hasFailed = allocationsFailed != failures;
                allocationsLeft = -1;
                const std::string sent = takeSent();
                if (result == row.success) {
                    EXPECT_TRUE(sameBytes(whole, sent)) << "at allocation " << allocation;
                } else {
                    EXPECT_EQ(Q7_ERR_FAILED, result) << "at allocation " << allocation;
                }
                if (!hasFailed)
                    break;
                if (HasFailure())
                    return;
            }
            FechaConexaoImpressora();
        }
    }
}

INSTANTIATE_TEST_SUITE_P(Calls, FailingMemory, testing::ValuesIn(rows),
                         [](const auto& row) { return std::to_string(row.index); });

TEST(FailingMemoryOfLinks, OpeningAndClosingSucceedOrLeaveNothing)
{
    for (const auto line : {FakePrinter::Line::Tcp, FakePrinter::Line::Serial}) {
        const FakePrinter printer({}, line);
        ASSERT_EQ(0, openOn(printer));
        ASSERT_EQ(0, FechaConexaoImpressora());
        const OwnResources before;
        for (const bool isClose : {false, true}) {
            for (long allocation = 0, failed = 1; failed > 0; ++allocation) {
                if (isClose) {
                    ASSERT_EQ(0, openOn(printer));
                }
                allocationsFailed = 1;
                allocationsLeft = allocation;
                const int result = isClose ? FechaConexaoImpressora() : openOn(printer);
                failed = 1 - allocationsFailed;
                allocationsLeft = -1;
                EXPECT_TRUE(failed > 0 || result == 0) << result;
                FechaConexaoImpressora();
            }
        }
        ASSERT_EQ(0, openOn(printer));
        EXPECT_EQ(1, ImpressaoTexto("x", 0, 0, 0));
        EXPECT_EQ(0, FechaConexaoImpressora());
        EXPECT_TRUE(before.comeBack()) << "descriptors or threads are left behind";
    }
}

} // namespace
