// Files that are handed over to be printed: what they are is found out before any printer is asked.

#include "tool.h"

using namespace q7test;

namespace
{

const std::string noDocumentTodo =
    "Use um CF-e de venda (raiz CFe), um cancelamento (CFeCanc) ou uma "
    "NFC-e (nfeProc ou NFe, modelo 65).";

std::string nfce(const std::string& model)
{
    return "<nfeProc xmlns=\"http://www.portalfiscal.inf.br/nfe\"><NFe><infNFe Id=\"NFe35\">"
           "<ide><mod>" +
           model + "</mod></ide></infNFe></NFe></nfeProc>";
}

class ToolDocuments : public Tool
{
protected:
    // Nobody is there: what is no document is refused before.
    static ProgramResult print(const std::string& file)
    {
        return run({"imprimir", file, "-i", "VANTA@net:127.0.0.1:1"});
    }
};

TEST_F(ToolDocuments, OthersAreRefused)
{
    const struct {
        std::string content;
        std::string happened;
    } rows[] = {
        {"", "O arquivo está vazio."},
        {"isto não é XML", "O XML não é bem formado: na linha 1, não começa como XML."},
        {"<CFe>\n<infCFe>\n</CFe>",
         "O XML não é bem formado: na linha 3, um elemento é fechado com o nome de outro."},
        {"<CFe>\n<infCFe>",
         "O XML não é bem formado: na linha 2, termina antes da hora, ou tem texto "
         "depois do fim."},
        {"<CFe/>\nx", "O XML não é bem formado: na linha 2, termina antes da hora, ou tem texto "
                      "depois do fim."},
        {"<CFe>\na & b</CFe>",
         "O XML não é bem formado: na linha 2, um \"&\" ou \"<\" do texto não "
         "foi escrito como &amp; ou &lt;."},
        {"<CFe>\n\xE7</CFe>", "O XML não é bem formado: na linha 2, há um caractere que não é da "
                              "codificação declarada."},
        {"<!DOCTYPE CFe [<!ENTITY a \"b\">]><CFe/>",
         "O XML tem uma declaração DOCTYPE, que nenhum documento fiscal tem."},
        {"<html/>",
         "O XML é bem formado, mas não é um documento que se imprima: a raiz é \"html\"."},
        {nfce("55"), "O documento é do modelo 55, não uma NFC-e."},
    };
    for (const auto& row : rows) {
        data.write("documento.xml", row.content);
        const ProgramResult result = print(data.path() + "/documento.xml");
        EXPECT_EQ(5, result.exitCode) << row.content;
        EXPECT_EQ(0U,
                  result.output.find("O que houve: " + row.happened + "\nCódigo: saída 5 do q7\n"))
            << result.output;
    }
    EXPECT_NE(std::string::npos, print(data.path() + "/documento.xml").output.find(noDocumentTodo));
}

TEST_F(ToolDocuments, DeepAndLargeOnesAreRefused)
{
    std::string deep;
    for (int level = 0; level < 100'000; ++level)
        deep += "<a>";
    data.write("documento.xml", "<CFe>" + deep);
    EXPECT_EQ(5, print(data.path() + "/documento.xml").exitCode);
    data.write("documento.xml", "<CFe>" + std::string(33U << 20U, ' ') + "</CFe>");
    const ProgramResult result = print(data.path() + "/documento.xml");
    EXPECT_EQ(5, result.exitCode);
    EXPECT_NE(std::string::npos, result.output.find("é grande demais: mais de 32 MB."));
}

TEST_F(ToolDocuments, WithOtherEncodingsAndNamesPrint)
{
    TcpPrinter printer;
    const std::string declared = "<?xml version=\"1.0\" encoding=\"ISO-8859-1\"?>";
    const std::string sale =
        "<CFe><infCFe Id=\"CFe35\"><emit><xFant>Caf\xE9</xFant></emit></infCFe>"
        "</CFe>";
    data.write("vendas do mês ação.xml", declared + sale);
    const ProgramResult result =
        run({"imprimir", data.path() + "/vendas do mês ação.xml", "-i", at(printer)});
    EXPECT_EQ(0, result.exitCode) << result.output;
    EXPECT_NE(std::string::npos, printer.waitForClose().find("Caf\xE9"));
}

TEST_F(ToolDocuments, ACancellationNeedsItsSale)
{
    const std::string cancellation = Q7_DOCUMENTS "/cancelamento.xml";
    const struct {
        std::vector<std::string> sale;
        int exitCode;
        std::string happened;
    } rows[] = {
        {{}, 2, "O cancelamento leva o QR code da venda, e falta o arquivo dela."},
        {{"--venda", Q7_DOCUMENTS "/homologacao.xml"},
         5,
         Q7_DOCUMENTS "/homologacao.xml não é uma venda: é uma NFC-e."},
        {{"--venda", Q7_DOCUMENTS "/venda-completa.xml"}, 5, "O cancelamento é da venda "},
    };
    for (const auto& row : rows) {
        std::vector<std::string> arguments = {"imprimir", cancellation, "-i",
                                              "VANTA@net:127.0.0.1:1"};
        arguments.insert(arguments.end(), row.sale.begin(), row.sale.end());
        const ProgramResult result = run(arguments);
        EXPECT_EQ(row.exitCode, result.exitCode);
        EXPECT_EQ(0U, result.output.find("O que houve: " + row.happened)) << result.output;
    }
}

} // namespace
