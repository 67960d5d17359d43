// The Brazilian forms of dates, amounts and identifiers.
#include "formatters.h"
#include "payment_methods.h"
#include "state_table.h"

#include <gtest/gtest.h>

namespace
{

TEST(Formatters, DateTime)
{
    EXPECT_EQ(q7::formatDateTimeBR("2019-05-20T10:30:45-03:00"), "20/05/2019 10:30:45");
    EXPECT_EQ(q7::formatDateTimeBR("20190520103045"), "20/05/2019 10:30:45");
    EXPECT_EQ(q7::formatDateTimeBR("20190520"), "20/05/2019   :  :");
    EXPECT_EQ(q7::formatDateTimeBR(""), "  /  /       :  :");
}

TEST(Formatters, Decimal)
{
    const struct {
        const char* amount;
        const char* text;
    } rows[] = {
        {"0.00", "0,00"},
        {"100.5", "100,5"},
        {"999.99", "999,99"},
        {"1234.56", "1.234,56"},
        {"123456.78", "123.456,78"},
        {"1234567.89", "1.234.567,89"},
        {"12345678.90", "12.345.678,90"},
        {"1234567890.00", "1234.567.890,00"},
        {"", ""},
    };
    for (const auto& row : rows)
        EXPECT_EQ(q7::formatDecimalBR(QString(row.amount)), row.text);
    EXPECT_EQ(q7::formatDecimalBR(1234.5), "1.234,50");
    EXPECT_EQ(q7::formatDecimalBR(1234567.891), "1.234.567,89");
}

TEST(Formatters, Identifiers)
{
    EXPECT_EQ(q7::formatCpf("12345678901"), "123.456.789-01");
    EXPECT_EQ(q7::formatCnpj("12345678000195"), "12.345.678/0001-95");
}

TEST(Formatters, AmountsThatAreNone)
{
    EXPECT_EQ(q7::amountOf("12.50"), 12.5);
    for (const char* text : {"", "doze", "1,5", "nan", "inf"})
        EXPECT_EQ(q7::amountOf(text), 0.0) << text;
}

TEST(StateTable, AbbreviatesTheNumbersOfStatesAlone)
{
    EXPECT_EQ(q7::stateAbbreviation(11), "RO");
    EXPECT_EQ(q7::stateAbbreviation(35), "SP");
    EXPECT_EQ(q7::stateAbbreviation(53), "DF");
    EXPECT_EQ(q7::stateAbbreviation(34), "");
}

TEST(PaymentMethods, CodeWithoutNameKeepsThePreviousName)
{
    EXPECT_EQ(q7::paymentMethodName("01", ""), "Dinheiro");
    EXPECT_EQ(q7::paymentMethodName("13", ""), QString::fromUtf8("Vale Combustível"));
    for (const char* code : {"7", "0", "100", "-1", "", "x"})
        EXPECT_EQ(q7::paymentMethodName(code, "Outros"), "Outros") << code;
}

} // namespace
