// Command lines that make no sense, and the help that leads on.

#include "tool.h"

using namespace q7test;

namespace
{

using ToolUsage = Tool;

TEST_F(ToolUsage, IsCorrectedInPortuguese)
{
    const std::string seeHelp = "Veja q7 --ajuda e q7 COMANDO --ajuda.";
    const std::string forExample =
        "Escreva por exemplo VANTA@net:192.168.0.10, VANTA@com:COM3:9600 ou VANTA@usb.";
    const struct {
        std::vector<std::string> arguments;
        std::string happened;
        std::string todo;
    } rows[] = {
        {{}, "Falta dizer o comando.", seeHelp},
        {{"imprimirr"}, "O comando \"imprimirr\" não existe.", seeHelp},
        {{"--tudo"}, "Não sei o que fazer com \"--tudo\".", seeHelp},
        {{"log"}, "Falta dizer o comando.", seeHelp},
        {{"estado"}, "Falta --impressora.", seeHelp},
        {{"estado", "-i"}, "Falta o valor de --impressora.", seeHelp},
        {{"imprimir", "-i", "VANTA@usb"}, "Falta ARQUIVO.", seeHelp},
        {{"imprimir", "a.xml", "-i", "VANTA@usb", "--csc", "1"},
         "Falta o valor de --csc.",
         seeHelp},
        {{"listar", "--tudo"}, "Não sei o que fazer com \"--tudo\".", seeHelp},
        {{"log", "mostrar", "--ultimas", "dez"}, "--ultimas não aceita \"dez\".", seeHelp},
        {{"estado", "-i", "VANTA"},
         "A impressora \"VANTA\" não foi entendida: falta o \"@\" entre o modelo e o lugar.",
         forExample},
        {{"estado", "-i", "XPTO@usb"},
         "A impressora \"XPTO@usb\" não foi entendida: os modelos são VANTA, VESPA, VOLTA, ORLA-K, "
         "PINTA, RANZA, RANZAPRO, SORBE, SALVI, DUNEL, TESMO.",
         forExample},
        {{"estado", "-i", "VANTA@lpt1"},
         "A impressora \"VANTA@lpt1\" não foi entendida: depois do \"@\" vem net:, com: ou usb.",
         forExample},
        {{"estado", "-i", "VANTA@usb:1"},
         "A impressora \"VANTA@usb:1\" não foi entendida: depois de \"usb\" não vem nada.",
         forExample},
        {{"estado", "-i", "VANTA@net:"},
         "A impressora \"VANTA@net:\" não foi entendida: falta o endereço ou a porta.",
         forExample},
        {{"estado", "-i", "VANTA@net:a:b"},
         "A impressora \"VANTA@net:a:b\" não foi entendida: \"b\" não é um número.",
         forExample},
        {{"estado", "-i", "VANTA@net:a:65536"},
         "A impressora \"VANTA@net:a:65536\" não foi entendida: a porta vai de 1 a 65535.",
         forExample},
        {{"estado", "-i", "VANTA@com:COM1:14400"},
         "A impressora \"VANTA@com:COM1:14400\" não foi entendida: a velocidade é 300, 1200, 2400, "
         "4800, 9600, 19200, 38400, 57600 ou 115200.",
         forExample},
        {{"imprimir", "nada.xml", "-i", "VANTA@usb"},
         "O arquivo nada.xml não pôde ser lido.",
         "Confira o nome e a pasta; nomes com espaços vão entre aspas."},
        {{"imprimir", "nada.xml", "-i", "VANTA@usb", "--opcoes", "x"},
         "--opcoes não aceita \"x\".",
         "Some os valores do cabeçalho q7_impressora.h, por exemplo --opcoes 0x48 ou 72."},
        {{"imprimir", "nada.xml", "-i", "VANTA@usb", "--csc", "a", "b"},
         "O identificador do CSC é um número, não \"a\".",
         "Escreva --csc 1 TOKEN."},
    };
    for (const auto& row : rows) {
        const ProgramResult result = run(row.arguments);
        EXPECT_EQ(2, result.exitCode);
        EXPECT_EQ(threeLines(row.happened, "saída 2 do q7", row.todo), result.output);
    }
    EXPECT_EQ("Falta --impressora.", ask({"estado"}, 2)["erro"]["mensagem"]);
}

TEST_F(ToolUsage, AVirtualPrinterNeedsPortsOfItsOwn)
{
    const TcpPrinter other;
    const std::string taken = std::to_string(other.port());
    for (const std::vector<std::string>& ports :
         {std::vector<std::string>{"--porta", taken, "--pagina", "0"},
          {"--porta", "0", "--pagina", taken}}) {
        std::vector<std::string> arguments = {"impressora"};
        arguments.insert(arguments.end(), ports.begin(), ports.end());
        const ProgramResult result = run(arguments);
        EXPECT_EQ(2, result.exitCode);
        EXPECT_EQ(0U, result.output.find("O que houve: A porta " + taken + " já está em uso."))
            << result.output;
    }
    EXPECT_EQ("O modelo \"XPTO\" não existe.",
              ask({"impressora", "--modelo", "XPTO"}, 2)["erro"]["mensagem"]);
}

TEST_F(ToolUsage, HelpIsThereForEveryCommandAndPortuguese)
{
    const ProgramResult all = run({"--ajuda"});
    EXPECT_EQ(0, all.exitCode);
    for (const std::vector<std::string>& command :
         std::vector<std::vector<std::string>>{{"testar"},
                                               {"validar"},
                                               {"visualizar"},
                                               {"impressora"},
                                               {"estado"},
                                               {"imprimir"},
                                               {"listar"},
                                               {"erro"},
                                               {"diagnostico"},
                                               {"log"},
                                               {"log", "ligar"},
                                               {"log", "desligar"},
                                               {"log", "mostrar"},
                                               {"log", "pasta"}}) {
        EXPECT_NE(std::string::npos, all.output.find("\n  " + command.front() + ' '));
        std::vector<std::string> arguments = command;
        arguments.emplace_back("--ajuda");
        const ProgramResult help = run(arguments);
        EXPECT_EQ(0, help.exitCode);
        EXPECT_NE(std::string::npos, help.output.find("\nUso: q7 " + command.front()))
            << help.output;
        for (const char* english : {"Options", "TEXT", "REQUIRED", "Usage", "UINT", "SUBCOMMAND"})
            EXPECT_EQ(std::string::npos, help.output.find(english)) << help.output;
    }
}

} // namespace
