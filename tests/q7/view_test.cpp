// Documents checked and drawn without any printer.

#include "tool.h"

#include <filesystem>

using namespace q7test;

namespace
{

using ToolView = Tool;

TEST_F(ToolView, DrawsDocumentsLogsAndBytesAlike)
{
    const std::string folder = data.path() + "/cupons de março";
    data.write("log_q7.txt", "");
    const nlohmann::json drawn =
        ask(words("visualizar " Q7_DOCUMENTS "/cancelamento.xml --venda " Q7_DOCUMENTS
                  "/venda-simples.xml --modelo sorbe -o",
                  {folder}),
            0);
    ASSERT_EQ(2U, drawn["arquivos"].size());
    EXPECT_EQ(folder + "/cancelamento-1-1.png", drawn["arquivos"][1]["arquivo"]);
    EXPECT_FALSE(drawn.contains("nao_entendidos"));
    const auto file = [&](const std::string& name) { return data.read("cupons de março/" + name); };
    EXPECT_TRUE(
        printedAsGolden("sat/cancelamento.SORBE.0.txt", file("cancelamento-1.bin"), feedAndCut));

    ask({"visualizar", folder + "/cancelamento-1.bin", "-o", folder, "--modelo", "SORBE"}, 0);
    std::filesystem::copy_file(data.path() + "/log_q7.txt", data.path() + "/caso.txt");
    ask({"visualizar", data.path() + "/caso.txt", "-o", folder}, 0); // the model is the log's
    for (const char* end : {"-1.txt", "-1.png"}) {
        const std::string expected = file(std::string("cancelamento-1") + end);
        EXPECT_LT(500U, expected.size());
        EXPECT_EQ(expected, file(std::string("cancelamento-1-1") + end)) << end;
        EXPECT_EQ(expected, file(std::string("caso-1") + end)) << end;
    }
}

TEST_F(ToolView, SaysWhatCannotBeDrawn)
{
    data.write("vazio.txt", "[15.11.2026-13:42:40.123].....[INFO]................[nada]\n");
    const struct {
        std::string line;
        int exitCode;
        const char* happened;
    } rows[] = {
        {"nada.xml", 2, "O arquivo nada.xml não pôde ser lido."},
        {Q7_DOCUMENTS "/venda-simples.xml --modelo XPTO", 2, "O modelo \"XPTO\" não existe."},
        {Q7_DOCUMENTS "/cancelamento.xml", 2,
         "O cancelamento leva o QR code da venda, e falta o arquivo dela."},
        {data.path() + "/vazio.txt", 5,
         "O log não tem nada que tenha sido enviado a uma impressora."},
    };
    for (const auto& [line, exitCode, happened] : rows)
        EXPECT_EQ(happened, ask(words("visualizar " + line, {"-o", data.path() + "/x"}),
                                exitCode)["erro"]["mensagem"]);
}

class ToolValidates : public Tool
{
protected:
    void SetUp() override
    {
        std::filesystem::create_directories(data.path() + "/esquemas/xsd/SAT");
        data.write("esquemas/xsd/SAT/XML_SAT.xsd",
                   "<xs:schema xmlns:xs='http://www.w3.org/2001/XMLSchema'><xs:element name='CFe'>"
                   "<xs:complexType><xs:sequence><xs:element name='infCFe'><xs:complexType>"
                   "<xs:sequence><xs:element name='a' type='xs:int'/><xs:element name='b' "
                   "type='xs:int'/></xs:sequence><xs:attribute name='Id'/></xs:complexType>"
                   "</xs:element></xs:sequence></xs:complexType></xs:element></xs:schema>");
    }

    nlohmann::json validate(const std::string& document, int exitCode)
    {
        data.write("documento.xml", document);
        return ask(
            {"validar", data.path() + "/documento.xml", "--esquemas", data.path() + "/esquemas"},
            exitCode);
    }
};

TEST_F(ToolValidates, EveryFaultWithItsLine)
{
    EXPECT_EQ(true,
              validate("<CFe><infCFe Id='CFe1'><a>1</a><b>2</b></infCFe></CFe>", 0)["valido"]);
    const nlohmann::json answer =
        validate("<CFe><infCFe Id='CFe1'>\n<a>x</a>\n\n<b/></infCFe></CFe>", 5);
    ASSERT_EQ(2U, answer["falhas"].size());
    EXPECT_EQ(2, answer["falhas"][0]["linha"]);
    EXPECT_EQ("CFe/infCFe/a", answer["falhas"][0]["lugar"]);
    EXPECT_EQ(4, answer["falhas"][1]["linha"]);
    EXPECT_EQ(-71, answer["erro"]["codigo"]);
    EXPECT_EQ("O documento não segue o esquema: 2 falhas.", answer["erro"]["mensagem"]);

    validate("<CFe><infCFe Id='CFe1'>\n<a>1</a>\n<m/></infCFe></CFe>", 5);
    EXPECT_TRUE(says(
        run({"validar", data.path() + "/documento.xml", "--esquemas", data.path() + "/esquemas"}),
        5, "Linha 3, CFe/infCFe/m\n    Esperado: b\n"));
}

TEST_F(ToolValidates, WhatItHasASchemaFor)
{
    EXPECT_EQ(-72, validate("<CFeCanc><infCFe Id='CFe1'/></CFeCanc>", 1)["erro"]["codigo"]);
    EXPECT_EQ("Não há esquema para um XML com a raiz \"html\".",
              validate("<html/>", 5)["erro"]["mensagem"]);
    validate("<CFe>", 5);
    data.write("esquemas/xsd/SAT/XML_SAT.xsd", "<xs:schema/>");
    EXPECT_EQ("O arquivo XML_SAT.xsd do esquema tem defeito.",
              validate("<CFe><infCFe Id='CFe1'/></CFe>", 1)["erro"]["mensagem"]);
}

} // namespace
