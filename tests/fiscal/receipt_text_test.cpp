// Texts set to the width of a receipt.
#include "receipt_text.h"

#include <gtest/gtest.h>

using namespace q7;

namespace
{

TEST(ReceiptText, BreaksBetweenWords)
{
    const struct {
        const char* text;
        int columns;
        const char* lines;
    } rows[] = {
        {"um dois tres", 12, "um dois tres"},
        {"um dois tres", 11, "um dois\ntres"},
        {"um dois tres", 7, "um dois\ntres"},
        {"um dois tres", 6, "um\ndois\ntres"},
        {"um   dois", 4, "um\ndois"},
        {"abcdefghij kl", 4, "abcd\nefgh\nij\nkl"},
        {"ab cdefghij", 4, "ab\ncdef\nghij"},
        {"um\ndois tres\n\nquatro", 6, "um\ndois\ntres\n\nquatro"},
        {"um\u00A0dois tres", 7, "um dois\ntres"},
        {"um\u00A0dois tres", 5, "um do\nis\ntres"},
        {"um dois", -1, "um dois"},
        {"", 5, ""},
    };
    for (const auto& row : rows)
        EXPECT_EQ(wrapped(row.text, row.columns), row.lines) << row.text << row.columns;
}

// Every line is as long as it can be; a word is not looked at again and again.
TEST(ReceiptText, BreaksLongTextsInTime)
{
    const QString text = QString(2000000, 'x') + ' ' + QString(2000000, ' ') + "fim";
    EXPECT_EQ(wrapWords(text, 50).size(), 40001U);
}

TEST(ReceiptText, KeepsTheRightMargin)
{
    const struct {
        const char* label;
        const char* value;
        int columns;
        const char* lines;
    } rows[] = {
        {"abc", "1,00", 10, "abc   1,00"},
        {"abcde", "1,00", 10, "abcde 1,00"},
        {"abcdef", "1,00", 10, "abcdef\n      1,00"},
        {"ab cd efghijk", "1,00", 10, "ab cd\nefghijk\n      1,00"},
        {"abcdefghijkl", "1,00", 10, "abcdefghij\nkl    1,00"},
        {"abc", "1,00", -1, "abc1,00"},
    };
    for (const auto& row : rows)
        EXPECT_EQ(labelAndValueLines(row.label, row.value, row.columns), row.lines);
}

TEST(ReceiptText, KeepsWhatPrints)
{
    EXPECT_EQ(oneLine(" a\r\n\tb|  c\u0085d\u00A0e "), "a b| c d e");
    EXPECT_EQ(printableLines("\n a\r\nb\rc\td\u0085 \n"), "a\nb\nc d");
}

} // namespace
