// The Brazilian forms of amounts.
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

TEST(Formatters, AmountsThatAreNone)
{
    EXPECT_EQ(q7::amountOf("12.50"), 12.5);
    for (const char* text : {"", "doze", "1,5", "nan", "inf"})
        EXPECT_EQ(q7::amountOf(text), 0.0) << text;
}

} // namespace
