// The fields of CF-e documents.
#include "cfe_cancel_document.h"
#include "cfe_sale_document.h"

#include <gtest/gtest.h>

namespace
{

QByteArray sale(const char* id, const char* body)
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

TEST(CfeSaleDocument, ReadsEveryFieldOfAnItem)
{
    const q7::CfeSaleDocument document(
        sale("", "<det nItem='7'><prod><cProd>a</cProd><xProd>b</xProd><qCom>c</qCom><uCom>d</uCom>"
                 "<vUnCom>e</vUnCom><vProd>f</vProd><vDesc>g</vDesc><vOutro>h</vOutro>"
                 "<vRatDesc>i</vRatDesc><vRatAcr>j</vRatAcr></prod><imposto>"
                 "<vItem12741>-</vItem12741><nItem12741>k</nItem12741><ISSQN>"
                 "<nDeducISSQN>l</nDeducISSQN><vBC>m</vBC></ISSQN></imposto></det><det/>"));
    ASSERT_EQ(document.items.size(), 2u);
    const q7::CfeItem& item = document.items[0];
    EXPECT_EQ(item.number + item.code + item.description + item.quantity + item.unit +
                  item.unitPrice + item.amount + item.discount + item.other +
                  item.apportionedDiscount + item.apportionedIncrease + item.taxEstimate +
                  item.issqnDeduction + item.issqnBase,
              "7abcdefghijklm");
    EXPECT_EQ(document.items[1].code, "");
}

TEST(CfeSaleDocument, PaymentsKeepTheNameBeforeThem)
{
    const q7::CfeSaleDocument document(
        sale("", "<pgto><MP><cMP>7</cMP></MP><MP><cMP>01</cMP><vMP>10.50</vMP></MP>"
                 "<MP><cMP>7</cMP><vMP>x</vMP></MP><MP><vMP>2</vMP></MP></pgto>"));
    const struct {
        const char* name;
        double value;
    } expected[] = {{"", 0}, {"Dinheiro", 10.5}, {"Dinheiro", 0}, {"Dinheiro", 2}};
    ASSERT_EQ(document.payments.size(), std::size(expected));
    for (std::size_t i = 0; i < std::size(expected); ++i) {
        EXPECT_EQ(document.payments[i].name, expected[i].name) << i;
        EXPECT_EQ(document.payments[i].value, expected[i].value) << i;
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
