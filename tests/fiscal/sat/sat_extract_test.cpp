// Whole SAT extracts, byte for byte, as an application prints them.

#include "export_fixture.h"
#include "test_files.h"

namespace
{

using namespace q7test;

std::string signatureOf(const std::string& sale)
{
    const std::string tag = "<assinaturaQRCODE>";
    return sale.substr(sale.find(tag) + tag.size(), 344);
}

struct Extract {
    const char* document;
    const char* model;
    int options;
    const char* goldenModel; // whose golden file it is
};

class SatExtract : public ExportTest, public testing::WithParamInterface<Extract>
{
};

TEST_P(SatExtract, IsPrintedByteForByte)
{
    const Extract& extract = GetParam();
    PrinterScript printer;
    printer.model = extract.model;
    openTcp(printer);
    const std::string xml = exampleDocument(extract.document);
    if (std::string(extract.document) == "cancelamento")
        EXPECT_EQ(0, ImprimeXMLCancelamentoSAT(
                         xml.c_str(), signatureOf(exampleDocument("venda-simples")).c_str(),
                         extract.options));
    else
        EXPECT_EQ(0, ImprimeXMLSAT(xml.c_str(), extract.options));
    EXPECT_TRUE(sameAsGolden(std::string("sat/") + extract.document + '.' + extract.goldenModel +
                                 '.' + std::to_string(extract.options) + ".txt",
                             takeSent()));
}

// Every model, and every option on a model with 64 columns and on one with rules of its own.
constexpr Extract extracts[] = {
    {"venda-simples", "VANTA", 0, "VANTA"},    {"venda-simples", "VANTA", 1, "VANTA"},
    {"venda-simples", "VANTA", 6, "VANTA"},    {"venda-simples", "VESPA", 0, "VANTA"},
    {"venda-simples", "VOLTA", 6, "VANTA"},    {"venda-simples", "PINTA", 1, "VANTA"},
    {"venda-simples", "SALVI", 0, "VANTA"},    {"venda-simples", "SORBE", 0, "SORBE"},
    {"venda-simples", "DUNEL", 0, "DUNEL"},    {"venda-simples", "RANZA", 0, "RANZA"},
    {"venda-simples", "TESMO", 0, "RANZA"},    {"venda-simples", "RANZAPRO", 0, "RANZA"},
    {"venda-completa", "VANTA", 0, "VANTA"},   {"venda-completa", "SORBE", 1, "SORBE"},
    {"venda-completa", "ORLA-K", 0, "ORLA-K"}, {"venda-completa", "DUNEL", 6, "DUNEL"},
    {"venda-completa", "RANZA", 0, "RANZA"},   {"cancelamento", "VANTA", 0, "VANTA"},
    {"cancelamento", "VANTA", 1, "VANTA"},     {"cancelamento", "SORBE", 0, "SORBE"},
    {"cancelamento", "DUNEL", 0, "DUNEL"},
};
INSTANTIATE_TEST_SUITE_P(Documents, SatExtract, testing::ValuesIn(extracts));

using SatExtractFailure = ExportTest;
using Texts = std::initializer_list<const char*>;

TEST_F(SatExtractFailure, SaleThatCannotBeReadPrintsItsLabels)
{
    openTcp();
    for (const char* xml : Texts{"no XML", "<CFe><infCFe><emit><xFant>A</xFant>", "", nullptr}) {
        EXPECT_EQ(0, ImprimeXMLSAT(xml, 0));
        EXPECT_TRUE(sameAsGolden("sat/nothing.VANTA.0.txt", takeSent()));
    }
}

TEST_F(SatExtractFailure, CancellationIsRefusedBeforeAnythingIsPrinted)
{
    openTcp();
    const std::string xml = exampleDocument("cancelamento");
    std::string accents; // 344 characters, twice as many bytes
    for (int i = 0; i < 344; ++i)
        accents += "ç";
    for (const std::string& signature : {std::string(343, 'x'), std::string(345, 'x')})
        EXPECT_EQ(-91, ImprimeXMLCancelamentoSAT(xml.c_str(), signature.c_str(), 0));
    EXPECT_EQ(-91, ImprimeXMLCancelamentoSAT(xml.c_str(), nullptr, 0));
    for (const char* other : Texts{"<CFe><infCFe/></CFe>", "<CFeCanc><infCFe>", "", nullptr})
        EXPECT_EQ(-9999, ImprimeXMLCancelamentoSAT(other, accents.c_str(), 0));
    EXPECT_EQ("", takeSent());
}

TEST_F(SatExtractFailure, CallAndResultFrameTheCallsOfTheLayout)
{
    EXPECT_EQ(-4, ImprimeXMLSAT("<CFe/>", 6));
    EXPECT_EQ(-4, ImprimeXMLCancelamentoSAT("<CFeCanc/>", "assinatura", 1));
    EXPECT_EQ(data.takeLog(),
              (std::vector<std::string>{
                  "FUNCAO ImprimeXMLSAT. PARAMETROS:<CFe/>",
                  "FUNCAO ImprimeXMLCancelamentoSAT. PARAMETROS:<CFeCanc/>,assinatura,1"}));
    openTcp();
    ImprimeXMLSAT("", 2);
    const std::vector<std::string> log = data.takeLog();
    ASSERT_GT(log.size(), 4u);
    EXPECT_EQ(log[1], "FUNCAO InicializaImpressora. PARAMETROS:");
    EXPECT_EQ(log[log.size() - 2], "FUNCAO AvancaPapel. RETORNO:0");
    EXPECT_EQ(log.back(), "FUNCAO ImprimeXMLSAT. RETORNO:0");
}

} // namespace
