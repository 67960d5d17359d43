// Fields of a fiscal document by path.
#include "xml_document.h"

#include <gtest/gtest.h>

namespace
{

using q7::FiscalXmlDocument;

constexpr char authorised[] =
    "<?xml version='1.0' encoding='UTF-8'?><nfeProc versao='4.00'><NFe><infNFe Id='NFe42' "
    "versao='4.00'><ide><nNF>7</nNF><xNat>Caf\xc3\xa9 &amp; P\xc3\xa3o</xNat><serie/>"
    "<tpEmis><!-- 1 -->1</tpEmis><qr><![CDATA[a&b]]></qr></ide>"
    "<det nItem='1'><prod><cProd>A</cProd></prod></det><det nItem='2'><prod/></det>"
    "<grp><det nItem='3'/></grp></infNFe></NFe></nfeProc>";

TEST(FiscalXmlDocument, AnswersByPath)
{
    const FiscalXmlDocument document(authorised);
    const struct {
        const char* path;
        const char* text;
    } rows[] = {
        {"ide|nNF", "7"},   {"ide|xNat", "Caf\xc3\xa9 & P\xc3\xa3o"},
        {"ide|qr", "a&b"},  {"ide|serie", ""},
        {"ide|tpEmis", ""}, // begins with a comment
        {"ide", ""},        {"ide|nnf", ""},
        {"total|vNF", ""},
    };
    for (const auto& row : rows)
        EXPECT_EQ(document.textAt(QString("nfeProc|NFe|infNFe|") + row.path),
                  QString::fromUtf8(row.text))
            << row.path;
    EXPECT_EQ(document.attributeAt("nfeProc|NFe|infNFe|Id"), "NFe42");
    EXPECT_TRUE(document.attributeAt("nfeProc|NFe|infNFe|id").isNull());
    EXPECT_TRUE(document.attributeAt("nfeProc|NFe|infCte|Id").isNull());

    const std::vector<q7::XmlNode> items = document.listAt("nfeProc|NFe|infNFe|det");
    ASSERT_EQ(items.size(), 3u);
    for (int i = 0; i < 3; ++i)
        EXPECT_EQ(items[static_cast<std::size_t>(i)].attribute(u"nItem"), QString::number(i + 1));
    EXPECT_TRUE(document.listAt("nfeProc|NFe|infCte|det").empty());
}

TEST(FiscalXmlDocument, FirstPartIsOptionalInTheDocument)
{
    const FiscalXmlDocument bare(
        "<?xml version='1.0'?><NFe><infNFe versao='4.00'><ide><nNF>7</nNF></ide>"
        "</infNFe></NFe>");
    EXPECT_EQ(bare.textAt("nfeProc|NFe|infNFe|ide|nNF"), "7");
    EXPECT_EQ(bare.textAt("nfeProc|protNFe|infProt|nProt"), "");
}

} // namespace
