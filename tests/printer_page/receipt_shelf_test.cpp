#include "receipt_shelf.h"

#include <gtest/gtest.h>

using namespace printer_page;

namespace
{

Receipt receiptOf(int id, std::size_t size = 0)
{
    Receipt receipt;
    receipt.id = id;
    receipt.text = std::string(size, 'x');
    return receipt;
}

std::vector<int> numbers(const ReceiptShelf::News& news)
{
    std::vector<int> ids;
    for (const auto& receipt : news.changed) {
        ids.push_back(receipt->id);
    }
    return ids;
}

constexpr std::chrono::milliseconds now{0};

} // namespace

TEST(Shelf, TellsWhatHasChangedAndDropsTheOldestForGood)
{
    ReceiptShelf shelf({3, 1'000'000});
    for (int id = 1; id <= 3; ++id) {
        shelf.keep(receiptOf(shelf.takeNumber()));
    }
    const ReceiptShelf::News all = shelf.newsSince(0, now);
    EXPECT_EQ(numbers(all), (std::vector<int>{1, 2, 3}));
    EXPECT_EQ(numbers(shelf.newsSince(all.version, now)), std::vector<int>());
    shelf.keep(receiptOf(2)); // goes on printing
    EXPECT_EQ(numbers(shelf.newsSince(all.version, now)), std::vector<int>{2});

    shelf.keep(receiptOf(shelf.takeNumber()));
    shelf.keep(receiptOf(shelf.takeNumber()));
    shelf.keep(receiptOf(1)); // a connection that still prints on one that has gone
    const ReceiptShelf::News news = shelf.newsSince(0, now);
    EXPECT_EQ(news.oldestId, 3);
    EXPECT_EQ(numbers(news), (std::vector<int>{3, 4, 5}));
    EXPECT_EQ(shelf.find(2), nullptr);
    shelf.clear();
    EXPECT_EQ(shelf.newsSince(news.version, now).oldestId, 6);
    EXPECT_EQ(shelf.takeNumber(), 6);
}

TEST(Shelf, KeepsNoMoreBytesThanItMay)
{
    ReceiptShelf shelf({100, 10'000});
    for (int id = 1; id <= 10; ++id) {
        shelf.keep(receiptOf(shelf.takeNumber(), 100));
        shelf.keep(receiptOf(id, 4000)); // the same, grown
    }
    EXPECT_EQ(numbers(shelf.newsSince(0, now)), (std::vector<int>{9, 10}));
    shelf.keep(receiptOf(shelf.takeNumber(), 50'000));
    EXPECT_EQ(numbers(shelf.newsSince(0, now)), std::vector<int>{11}) << "the latest always";
}
