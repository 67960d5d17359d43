// Item tables: items as whole lines of the receipt.
#include "item_layout.h"

#include <gtest/gtest.h>

namespace
{

std::string lines(std::initializer_list<const char*> texts)
{
    std::string all;
    for (const char* text : texts)
        all += text;
    return all;
}

std::string lineOf(const q7::CfeItem& item, int width1, int width2)
{
    return q7::cfeItemLine(item, width1, width2).toStdString();
}

q7::CfeItem cfeItem(const char* description, const char* amount = "9.07")
{
    q7::CfeItem item;
    item.number = "1";
    item.code = "101";
    item.description = QString::fromUtf8(description);
    item.quantity = "0.4800";
    item.unit = "KG";
    item.unitPrice = "18.90";
    item.amount = amount;
    return item;
}

TEST(CfeItems, AmountEndsAtTheRightMargin)
{
    EXPECT_EQ(lineOf(cfeItem("PÃO FRANCÊS"), 48, 64),
              "1 101 PÃO FRANCÊS 0.4800 KG X 18.90                         9.07");
    EXPECT_EQ(lineOf(cfeItem("PÃO FRANCÊS"), 42, 56),
              "1 101 PÃO FRANCÊS 0.4800 KG X 18.90                 9.07");
    // One blank is left, then none.
    EXPECT_EQ(lineOf(cfeItem("12345678901234567890123456789012345"), 48, 64),
              "1 101 12345678901234567890123456789012345 0.4800 KG X 18.90 9.07");
    EXPECT_EQ(lineOf(cfeItem("123456789012345678901234567890123456"), 48, 64),
              "1 101 123456789012345678901234567890123456 0.4800 KG X 18.909.07");
    EXPECT_EQ(lineOf(cfeItem("1234567890123456789012345678901234567"), 48, 64),
              lines({"1 101 1234567890123456789012345678901234567 0.4800 KG X 18.90   ",
                     "                                                            9.07"}));
    // No paper width: nothing is padded.
    EXPECT_EQ(lineOf(cfeItem("LEITE"), -1, -1), "1 101 LEITE 0.4800 KG X 18.909.07");
}

TEST(NfceItems, HeaderFillsTheLineUnlessThePaperHasNone)
{
    for (const int width : {64, 56}) {
        for (const int options : {0, 0x02, 0x100, 0x102, 0x106}) {
            const QString header = q7::nfceItemHeader(options, width);
            EXPECT_EQ(header.size(), width);
            EXPECT_EQ(header.startsWith("N   "), (options & 0x100) != 0);
            EXPECT_EQ(header.indexOf("Descricao"),
                      ((options & 0x100) != 0 ? 4 : 0) + ((options & 0x02) != 0 ? 14 : 8));
            EXPECT_EQ(header.indexOf("Qtde"), width == 64 ? 35 : 30);
        }
    }
    EXPECT_EQ(q7::nfceItemHeader(4, -1), q7::nfceItemHeader(0, 56));
}

struct NfceRow {
    const char* name;
    q7::NfceItem item; // number, code, gtin, description, quantity, unit, unit price, amount
    int options;
    int width;
    std::string text;
};
std::ostream& operator<<(std::ostream& out, const NfceRow& row)
{
    return out << row.name;
}

class NfceItemLine : public testing::TestWithParam<NfceRow>
{
};

TEST_P(NfceItemLine, FillsWholeLines)
{
    const NfceRow& row = GetParam();
    EXPECT_EQ(q7::nfceItemLine(row.item, row.options, row.width).toStdString(), row.text);
}

// Right of the description: 6, 5, 7 and 11 columns of 64, or 5, 4, 7 and 10 of 56.
const NfceRow nfceRows[] = {
    {"Wide",
     {"1", "101", "", "LEITE", "2.0000", "UN", "5.2900", "10.58"},
     0,
     64,
     "101     LEITE                      2     UN      5,29      10,58"},
    {"Narrow",
     {"1", "101", "", "LEITE", "0.4800", "KG", "5.29", "1010.58"},
     0,
     56,
     "101     LEITE                 0,48 KG     5,29  1.010,58"},
    {"NumberAndGtin",
     {"12", "101", "7891000315507", "LEITE", "10", "UN", "1234.50", "10.58"},
     0x102,
     64,
     lines({"12  7891000315507 LEITE                                         ",
            "                                            10 UN 1.234,50 10,58"})},
    {"WithoutGtin",
     {"12", "101", "", "LEITE", "10", "UN", "5.3", "10.58"},
     0x102,
     56,
     "12  SEM GTIN      LEITE       10   UN      5,3     10,58"},
    {"FieldsLongerThanTheirColumns",
     {"12345", "ABCDEFGHI", "", "LEITE", "1.", "UN", "5", "10.58"},
     0x100,
     64,
     "12345 ABCDEFGHI LEITE              1     UN         5      10,58"},
    {"FieldsThatFillTheirColumns",
     {"1234", "ABCDEFGH", "", "LEITE", "1", "UN", "5.00", "10.58"},
     0x100,
     64,
     "1234ABCDEFGHLEITE                  1     UN      5,00      10,58"},
    {"PriceOfManyDecimals",
     {"1", "101", "", "GAS", "30.125", "L", "5.67900", "1234567.89"},
     0,
     64,
     lines({"101     GAS                                                     ",
            "                                     30,125 L 5,679 1.234.567,89"})},
    {"LongerThanTheLine",
     {"1", "101", "", "GAS", "123456789012345678901234567890", "L", "12345678901234567890", "1.00"},
     0,
     56,
     lines({"101     GAS                                             ",
            "                                                      12",
            "3456789012345678901234567890 L 12345678901234567890 1,00"})},
    {"DescriptionUpToTheQuantity",
     {"1", "101", "", "12345678901234567890123456", "2", "UN", "5.29", "10.58"},
     0,
     64,
     "101     12345678901234567890123456 2     UN      5,29      10,58"},
    {"DescriptionBeyondIt",
     {"1", "101", "", "123456789012345678901234567", "2", "UN", "5.29", "10.58"},
     0,
     64,
     lines({"101     123456789012345678901234567                             ",
            "                                   2     UN      5,29      10,58"})},
    {"DescriptionBeyondItNarrow",
     {"1", "101", "", "1234567890123456789012", "2", "UN", "5.29", "10.58"},
     0,
     56,
     lines({"101     1234567890123456789012                          ",
            "                              2    UN     5,29     10,58"})},
    {"WithoutPaperWidth",
     {"1", "101", "", "LEITE", "2", "UN", "5.29", "10.58"},
     0,
     -1,
     "101     LEITE 2    UN     5,29     10,58"},
};

INSTANTIATE_TEST_SUITE_P(Items, NfceItemLine, testing::ValuesIn(nfceRows),
                         [](const auto& row) { return std::string(row.param.name); });

} // namespace
