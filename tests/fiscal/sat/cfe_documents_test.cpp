// The fields of CF-e documents.
#include "cfe_cancel_document.h"
#include "cfe_sale_document.h"

#include <gtest/gtest.h>

namespace
{

QByteArray sale(const char* id, const QByteArray& body)
{
    return QByteArray("<CFe><infCFe Id='") + id + "'>" + body + "</infCFe></CFe>";
}

TEST(CfeSaleDocument, ReadsAddressAndConsumer)
{
    const q7::CfeSaleDocument document(
        sale("CFe3524CFe", "<ide><cUF>43</cUF><dEmi>20240115</dEmi><hEmi>143005</hEmi></ide><emit>"
                           "<enderEmit><xLgr>Rua</xLgr><xBairro>Centro</xBairro></enderEmit></emit>"
                           "<dest><CNPJ>12345678000195</CNPJ><CPF>12345678901</CPF></dest>"));
    EXPECT_EQ(document.address, "Rua  Centro  RS");
    EXPECT_EQ(document.emission, "20240115143005");
    EXPECT_EQ(document.accessKey, "3524");
    EXPECT_EQ(document.consumerId, "123.456.789-01");
    const q7::CfeSaleDocument company(
        sale("3524", "<dest><CNPJ>12345678000195</CNPJ><CPF></CPF></dest>"));
    EXPECT_EQ(company.accessKey, "3524");
    EXPECT_EQ(company.address, "");
    EXPECT_EQ(company.consumerId, "12.345.678/0001-95");
}

// Extracts print none of these.
TEST(CfeSaleDocument, ReadsTheFieldsOfAnItemThatOnlyASaleHas)
{
    const q7::CfeSaleDocument document(
        sale("", "<det><prod><vDesc>a</vDesc><vOutro>b</vOutro><vRatDesc>c</vRatDesc>"
                 "<vRatAcr>d</vRatAcr></prod><imposto><vItem12741>-</vItem12741>"
                 "<nItem12741>e</nItem12741><ISSQN><nDeducISSQN>f</nDeducISSQN><vBC>g</vBC>"
                 "</ISSQN></imposto></det>"));
    ASSERT_EQ(document.items.size(), 1u);
    const q7::CfeItem& item = document.items[0];
    EXPECT_EQ(item.discount + item.other + item.apportionedDiscount + item.apportionedIncrease +
                  item.taxEstimate + item.issqnDeduction + item.issqnBase,
              "abcdefg");
}

TEST(CfeSaleDocument, PaymentsWithoutANameKeepTheOneBeforeThem)
{
    const struct {
        const char* method;
        const char* name;
        double value;
    } rows[] = {
        {"<cMP>7</cMP>", "", 0},
        {"<cMP>01</cMP><vMP>10.50</vMP>", "Dinheiro", 10.5},
        {"<cMP>7</cMP><vMP>x</vMP>", "Dinheiro", 0},
        {"<cMP>13</cMP><vMP>1</vMP>", "Vale Combustível", 1},
        {"<cMP>100</cMP><vMP>2</vMP>", "Vale Combustível", 2},
        {"<vMP>3</vMP>", "Vale Combustível", 3},
    };
    QByteArray methods;
    for (const auto& row : rows)
        methods += QByteArray("<MP>") + row.method + "</MP>";
    const q7::CfeSaleDocument document(sale("", "<pgto>" + methods + "</pgto>"));
    ASSERT_EQ(document.payments.size(), std::size(rows));
    for (std::size_t i = 0; i < std::size(rows); ++i) {
        EXPECT_EQ(document.payments[i].name, QString::fromUtf8(rows[i].name)) << i;
        EXPECT_EQ(document.payments[i].value, rows[i].value) << i;
    }
}

TEST(CfeCancelDocument, TakesTheCancelledKeyFromAttributeOrElement)
{
    const q7::CfeCancelDocument attribute(
        "<CFeCanc><infCFe Id='CFe1' chCanc='CFe2'><chCanc>CFe3</chCanc></infCFe></CFeCanc>");
    EXPECT_EQ(attribute.cancelKey, "1");
    EXPECT_EQ(attribute.saleKey, "2");
    const q7::CfeCancelDocument element(
        "<CFeCanc><infCFe><chCanc>CFe3</chCanc></infCFe></CFeCanc>");
    EXPECT_EQ(element.saleKey, "3");
    EXPECT_TRUE(element.isCancellation());
    EXPECT_FALSE(q7::CfeCancelDocument("<CFe><infCFe/></CFe>").isCancellation());
}

} // namespace
