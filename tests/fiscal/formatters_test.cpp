// The Brazilian forms of amounts and dates.
#include "formatters.h"

#include <gtest/gtest.h>

namespace
{

TEST(Formatters, Decimal)
{
    const struct {
        const char* amount;
        const char* text;
    } rows[] = {{"100.5", "100,5"},
                {"999.99", "999,99"},
                {"1234.56", "1.234,56"},
                {"123456.78", "123.456,78"},
                {"1234567.89", "1.234.567,89"},
                {"1234567890.00", "1234.567.890,00"},
                {"", ""}};
    for (const auto& row : rows)
        EXPECT_EQ(q7::formatDecimalBR(QString(row.amount)), row.text);
    EXPECT_EQ(q7::formatDecimalBR(1234567.891), "1.234.567,89");
}

TEST(Formatters, DatesInTheOffsetOfAnother)
{
    const char* const none = "2026-10-03T23:30:00";
    const struct {
        const char* date;
        const char* reference;
        const char* text;
    } rows[] = {{"2026-10-04T02:30:00+00:00", "2026-10-03T23:29:00-03:00", "2026-10-03T23:30:00"},
                {"2026-10-04T02:30:00Z", "2026-10-03T23:29:00-04:00", "2026-10-03T22:30:00"},
                {"2026-12-31T22:30:00-05:00", "2026-12-31T23:29:00-02:00", "2027-01-01T01:30:00"},
                {none, "2026-10-03T23:29:00-03:00", none},
                {"2026-10-03T23:30:00-03:00", none, "2026-10-03T23:30:00-03:00"},
                {"ontem", "2026-10-03T23:29:00-03:00", "ontem"},
                {"", "", ""}};
    for (const auto& row : rows)
        EXPECT_EQ(q7::inOffsetOf(row.date, row.reference), row.text);
}

TEST(Formatters, AmountsThatAreNone)
{
    EXPECT_EQ(q7::amountOf("12.50"), 12.5);
    for (const char* text : {"", "doze", "1,5", "nan", "inf"})
        EXPECT_EQ(q7::amountOf(text), 0.0) << text;
}

} // namespace
