// Files that are handed over to be printed: what they are is found out before any printer is asked.

#include "tool.h"

using namespace q7test;

namespace
{

const std::string malformed = "O XML não é bem formado: na linha ";

std::string nfce(const std::string& model)
{
    return "<nfeProc xmlns=\"http://www.portalfiscal.inf.br/nfe\"><NFe><infNFe Id=\"NFe35\">"
           "<ide><mod>" +
           model + "</mod></ide></infNFe></NFe></nfeProc>";
}

class ToolDocuments : public Tool
{
protected:
    ProgramResult print(const std::string& content)
    {
        data.write("documento.xml", content);
        // Nobody is there: what is no document is refused before.
        return run({"imprimir", data.path() + "/documento.xml", "-i", "VANTA@net:127.0.0.1:1"});
    }
};

TEST_F(ToolDocuments, OthersAreRefused)
{
    const std::string notOver = "termina antes da hora, ou tem texto depois do fim.";
    const std::pair<std::string, std::string> rows[] = {
        {"", "O arquivo está vazio."},
        {"isto não é XML", malformed + "1, não começa como XML."},
        {"<CFe>\n<infCFe>\n</CFe>", malformed + "3, um elemento é fechado com o nome de outro."},
        {"<CFe>\n<infCFe>", malformed + "2, " + notOver},
        {"<CFe/>\nx", malformed + "2, " + notOver},
        {"<CFe>\na & b</CFe>",
         malformed + "2, um \"&\" ou \"<\" do texto não foi escrito como &amp; ou &lt;."},
        {"<CFe>\n\xE7</CFe>", malformed + "2, há um caractere que não é da codificação declarada."},
        {"<!DOCTYPE CFe [<!ENTITY a \"b\">]><CFe/>",
         "O XML tem uma declaração DOCTYPE, que nenhum documento fiscal tem."},
        {"<html/>",
         "O XML é bem formado, mas não é um documento que se imprima: a raiz é \"html\"."},
        {nfce("55"), "O documento é do modelo 55, não uma NFC-e."},
    };
    for (const auto& [content, happened] : rows)
        EXPECT_TRUE(
            begins(print(content), 5, "O que houve: " + happened + "\nCódigo: saída 5 do q7\n"));
    EXPECT_TRUE(says(print(nfce("55")), 5,
                     "Use um CF-e de venda (raiz CFe), um cancelamento (CFeCanc) ou uma NFC-e "
                     "(nfeProc ou NFe, modelo 65)."));
}

TEST_F(ToolDocuments, DeepAndLargeOnesAreRefused)
{
    std::string deep;
    for (int level = 0; level < 100'000; ++level)
        deep += "<a>";
    EXPECT_EQ(5, print("<CFe>" + deep).exitCode);
    EXPECT_TRUE(says(print("<CFe>" + std::string(33U << 20U, ' ') + "</CFe>"), 5,
                     "é grande demais: mais de 32 MB."));
}

TEST_F(ToolDocuments, WithOtherEncodingsAndNamesPrint)
{
    TcpPrinter printer;
    data.write("vendas do mês ação.xml",
               "<?xml version=\"1.0\" encoding=\"ISO-8859-1\"?><CFe><infCFe Id=\"CFe35\"><emit>"
               "<xFant>Caf\xE9</xFant></emit></infCFe></CFe>");
    EXPECT_TRUE(
        says(run({"imprimir", data.path() + "/vendas do mês ação.xml", "-i", at(printer)}), 0, ""));
    EXPECT_NE(std::string::npos, printer.waitForClose().find("Caf\xE9"));
}

TEST_F(ToolDocuments, ACancellationNeedsItsSale)
{
    const std::string note = Q7_DOCUMENTS "/homologacao.xml";
    const struct {
        Arguments sale;
        int exitCode;
        std::string happened;
    } rows[] = {
        {{}, 2, "O cancelamento leva o QR code da venda, e falta o arquivo dela."},
        {{"--venda", note}, 5, note + " não é uma venda: é uma NFC-e."},
        {{"--venda", Q7_DOCUMENTS "/venda-completa.xml"}, 5, "O cancelamento é da venda "},
    };
    for (const auto& [sale, exitCode, happened] : rows)
        EXPECT_TRUE(begins(
            run(words("imprimir " Q7_DOCUMENTS "/cancelamento.xml -i VANTA@net:127.0.0.1:1", sale)),
            exitCode, "O que houve: " + happened));
}

} // namespace
