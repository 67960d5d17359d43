// Item tables: items as whole lines of the receipt.
#include "item_layout.h"
#include "receipt_text.h"

#include <QElapsedTimer>
#include <QStringList>
#include <gtest/gtest.h>

namespace
{

TEST(CfeItems, AmountEndsAtTheRightMargin)
{
    const struct {
        const char* description;
        int width2;
        const char* line;
    } rows[] = {
        {"PÃO FRANCÊS", 64, "1 101 PÃO FRANCÊS 0.4800 KG X 18.90                         9.07"},
        {"PÃO FRANCÊS", 56, "1 101 PÃO FRANCÊS 0.4800 KG X 18.90                 9.07"},
        // One blank is left, then none.
        {"LEITE INTEGRAL EM CAIXA COM 1 LITRO", 64,
         "1 101 LEITE INTEGRAL EM CAIXA COM 1 LITRO 0.4800 KG X 18.90 9.07"},
        {"LEITE INTEGRAL EM CAIXAS COM 1 LITRO", 64,
         "1 101 LEITE INTEGRAL EM CAIXAS COM 1 LITRO 0.4800 KG X 18.909.07"},
        {"LEITE INTEGRAL EM CAIXAS COM 2 LITROS", 64,
         "1 101 LEITE INTEGRAL EM CAIXAS COM 2 LITROS 0.4800 KG X 18.90   "
         "                                                            9.07"},
        // No paper width: nothing is padded.
        {"LEITE", -1, "1 101 LEITE 0.4800 KG X 18.909.07"},
    };
    for (const auto& row : rows) {
        q7::CfeItem item;
        static_cast<q7::FiscalItem&>(item) = {
            "1", "101", QString::fromUtf8(row.description), "0.4800", "KG", "18.90", "9.07"};
        EXPECT_EQ(q7::cfeItemLine(item, row.width2).toStdString(), row.line);
    }
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

// Right of the description: 6, 5, 7 and 11 columns of 64, or 5, 4, 7 and 10 of 56.
TEST(NfceItems, FillWholeLines)
{
    const struct {
        const char* item; // number, code, description, quantity, unit, unit price, amount, GTIN
        int options;
        int width;
        const char* lines;
    } rows[] = {
        {"1|101|LEITE|2.0000|UN|5.2900|10.58|", 0, 64,
         "101     LEITE                      2     UN      5,29      10,58"},
        {"1|101|LEITE|0.4800|KG|5.29|1010.58|", 0, 56,
         "101     LEITE                 0,48 KG     5,29  1.010,58"},
        {"1|101|LEITE|2|UN|5.29|10.58|", 0, -1, "101     LEITE 2    UN     5,29     10,58"},
        {"12|101|LEITE|10|UN|1234.50|10.58|7891000315507", 0x102, 64,
         "12  7891000315507 LEITE                                         "
         "                                            10 UN 1.234,50 10,58"},
        {"12|101|LEITE|10|UN|5.3|10.58|", 0x102, 56,
         "12  SEM GTIN      LEITE       10   UN      5,3     10,58"},
        // Fields longer than their columns, and fields that fill them.
        {"12345|ABCDEFGHI|LEITE|1.|UN|5|10.58|", 0x100, 64,
         "12345 ABCDEFGHI LEITE              1     UN         5      10,58"},
        {"1234|ABCDEFGH|LEITE|1|UN|5.00|10.58|", 0x100, 64,
         "1234ABCDEFGHLEITE                  1     UN      5,00      10,58"},
        // An amount, a quantity and a unit that leave no blank; a price that fills its column, and
        // one that is longer.
        {"1|101|LEITE|2|UN|5.29|99999.99|", 0, 56,
         "101     LEITE                 2    UN     5,29 99.999,99"},
        {"1|101|LEITE|2|UN|5.29|100000.00|", 0, 56,
         "101     LEITE                                           "
         "                                    2 UN 5,29 100.000,00"},
        {"1|101|LEITE|12345|UN|5.29|10.58|", 0, 56,
         "101     LEITE                                           "
         "                                     12345 UN 5,29 10,58"},
        {"1|101|LEITE|2|UNID|5.29|10.58|", 0, 56,
         "101     LEITE                                           "
         "                                       2 UNID 5,29 10,58"},
        {"1|101|LEITE|2|UN|12.3456|10.58|", 0, 56,
         "101     LEITE                 2    UN  12,3456     10,58"},
        {"1|101|LEITE|2|UN|9999.99|10.58|", 0, 56,
         "101     LEITE                                           "
         "                                     2 UN 9.999,99 10,58"},
        // Figures that leave their columns, and that leave the line.
        {"1|101|GAS|30.125|L|5.67900|1234567.89|", 0, 64,
         "101     GAS                                                     "
         "                                     30,125 L 5,679 1.234.567,89"},
        {"1|101|GAS|123456789012345678901234567890|L|12345678901234567890|1.00|", 0, 56,
         "101     GAS                                             "
         "                                                      12"
         "3456789012345678901234567890 L 12345678901234567890 1,00"},
        // A description that reaches the quantity, and longer ones.
        {"1|101|LEITE INTEGRAL LONGA VIDA1|2|UN|5.29|10.58|", 0, 64,
         "101     LEITE INTEGRAL LONGA VIDA1 2     UN      5,29      10,58"},
        {"1|101|LEITE INTEGRAL LONGA VIDA 1|2|UN|5.29|10.58|", 0, 64,
         "101     LEITE INTEGRAL LONGA VIDA 1                             "
         "                                   2     UN      5,29      10,58"},
        {"1|101|LEITE INTEGRAL EM 1 L.|2|UN|5.29|10.58|", 0, 56,
         "101     LEITE INTEGRAL EM 1 L.                          "
         "                              2    UN     5,29     10,58"},
    };
    for (const auto& row : rows) {
        const QStringList f = QString(row.item).split('|');
        const q7::NfceItem item{{f[0], f[1], f[2], f[3], f[4], f[5], f[6]}, f[7]};
        EXPECT_EQ(q7::nfceItemLine(item, row.options, row.width).toStdString(), row.lines);
    }
}

// Hostile fields: what grows with the square of their length takes minutes here.
TEST(LongFields, CostNoMoreThanTheirLength)
{
    QElapsedTimer timer;
    timer.start();
    const QString zeros = "1." + QString(4'000'000, '0');
    const q7::NfceItem item{{"1", "101", "GAS", zeros, "L", zeros, "1.00"}, ""};
    EXPECT_EQ(q7::nfceItemLine(item, 0, 64).toStdString(),
              "101     GAS                        1     L       1,00       1,00");
    EXPECT_EQ(q7::groupsOfFour(QString(4'000'000, '1')).size(), 4'999'999);
    EXPECT_EQ(q7::blankAfterEveryFour(QString(4'000'000, '1')).size(), 5'000'000);
    EXPECT_LT(timer.elapsed(), 10'000);
}

} // namespace
