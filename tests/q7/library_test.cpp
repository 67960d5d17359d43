// The library beside the tool: there, missing, of another kind, of another version.

#include "bytes.h"
#include "q7_impressora.h"
#include "tool.h"

using namespace q7test;

namespace
{

using ToolLibrary = Tool;

TEST_F(ToolLibrary, IsFoundAndNamed)
{
    const nlohmann::json answer = ask({"--versao"}, 0);
    EXPECT_EQ(Q7_VERSION_TEXT, answer["q7"]);
    EXPECT_EQ(Q7_VERSION_TEXT, answer["versao_biblioteca"]);
    EXPECT_EQ(Q7_LIBRARY, answer["biblioteca"]);
}

TEST_F(ToolLibrary, ThatDoesNotServeIsSaidInWords)
{
    const std::string zeros(200, '\0');
    data.write("libtexto.so", "texto");
    data.write("lib32.so", hex("7F 'ELF' 01 01 01") + zeros);
    data.write("lib64.so", hex("7F 'ELF' 02 01 01") + zeros);
    data.write("do_windows.dll",
               "MZ" + zeros.substr(0, 0x3A) + hex("40 00 00 00 'PE' 00 00 4C 01"));
    const std::string folder = data.path() + '/';
    const std::pair<std::string, std::string> rows[] = {
        // The library, and how the words begin.
        {folder + "nada.so", "A biblioteca " + folder + "nada.so não foi encontrada."},
        {folder + "libtexto.so", folder + "libtexto.so não é uma biblioteca."},
        {folder + "do_windows.dll",
         "A biblioteca " + folder + "do_windows.dll é do Windows e este programa é do Linux."},
        {folder + "lib32.so", "A biblioteca " + folder +
                                  "lib32.so é de 32 bits e este programa é de 64: um não carrega "
                                  "o outro."},
        {folder + "lib64.so", "A biblioteca " + folder + "lib64.so não pôde ser carregada: "},
        {Q7_OTHER_VERSION, Q7_OTHER_VERSION " é da versão 00.09.00 e não tem a função "},
    };
    for (const auto& [library, happened] : rows) {
        for (const char* command : {"--versao", "estado -i VANTA@usb"}) {
            const ProgramResult result = run(words(command, {"--biblioteca", library}));
            EXPECT_TRUE(says(result, 1, "O que houve: " + happened));
            EXPECT_TRUE(says(result, 1, "\nCódigo: saída 1 do q7\nO que fazer: "));
        }
    }
}

TEST_F(ToolLibrary, CodesAreExplainedFromItsHeader)
{
    const nlohmann::json answer = ask({"erro", "-13"}, 0);
    EXPECT_EQ("Q7_ERR_SERIAL_DENIED", answer["nome"]);
    EXPECT_EQ("Porta serial em uso ou sem permissão", answer["significado"]);
    EXPECT_NE(std::string::npos, answer["o_que_fazer"].get<std::string>().find("dialout"));
    EXPECT_EQ(answer, ask({"erro", "q7_err_serial_denied"}, 0));
    EXPECT_EQ(-9999, ask({"erro"}, 0)["codigos"].back()["codigo"]);
    EXPECT_EQ(7, ask({"erro", "Q7_NET_UNREACHABLE"}, 0)["codigo"]);
    const nlohmann::json positive = ask({"erro", "5"}, 0);
    EXPECT_EQ("Input/output error", positive["sistema"]);
    std::string names;
    for (const nlohmann::json& meaning : positive["respostas"])
        names += meaning["nome"].get<std::string>() + '|';
    EXPECT_EQ("Q7_NET_TIMEOUT|Q7_STATE_PAPER_PRESENT|Q7_PRINTER_COVER_OPEN_PAPER_OUT|"
              "Q7_STATE_BIT_DRAWER_LOW + Q7_STATE_BIT_PAPER_NEAR_END|",
              names);
    EXPECT_EQ("Q7_NET_REFUSED", ask({"erro", "0"}, 0)["respostas"][0]["nome"]);
    ask({"erro", "-1"}, 2);
    ask({"erro", "nada"}, 2);
}

} // namespace
