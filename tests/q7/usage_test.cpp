// Command lines that make no sense, and the help that leads on.

#include "tool.h"

using namespace q7test;

namespace
{

class ToolUsage : public Tool
{
protected:
    static void expectCorrection(const Arguments& arguments, const std::string& happened,
                                 const std::string& todo)
    {
        const ProgramResult result = run(arguments);
        EXPECT_EQ(2, result.exitCode);
        EXPECT_EQ(threeLines(happened, "saída 2 do q7", todo), result.output);
    }
};

TEST_F(ToolUsage, IsCorrectedInPortuguese)
{
    const std::string seeHelp = "Veja q7 --ajuda e q7 COMANDO --ajuda.";
    const struct {
        const char* line;
        const char* happened;
        std::string todo;
    } rows[] = {
        {"", "Falta dizer o comando.", seeHelp},
        {"imprimirr", "O comando \"imprimirr\" não existe.", seeHelp},
        {"--tudo", "Não sei o que fazer com \"--tudo\".", seeHelp},
        {"log", "Falta dizer o comando.", seeHelp},
        {"estado", "Falta --impressora.", seeHelp},
        {"estado -i", "Falta o valor de --impressora.", seeHelp},
        {"imprimir -i VANTA@usb", "Falta ARQUIVO.", seeHelp},
        {"imprimir a.xml -i VANTA@usb --csc 1", "Falta o valor de --csc.", seeHelp},
        {"listar --tudo", "Não sei o que fazer com \"--tudo\".", seeHelp},
        {"log mostrar --ultimas dez", "--ultimas não aceita \"dez\".", seeHelp},
        {"imprimir nada.xml -i VANTA@usb", "O arquivo nada.xml não pôde ser lido.",
         "Confira o nome e a pasta; nomes com espaços vão entre aspas."},
        {"imprimir nada.xml -i VANTA@usb --opcoes x", "--opcoes não aceita \"x\".",
         "Some os valores do cabeçalho q7_impressora.h, por exemplo --opcoes 0x48 ou 72."},
        {"imprimir nada.xml -i VANTA@usb --csc a b",
         "O identificador do CSC é um número, não \"a\".", "Escreva --csc 1 TOKEN."},
    };
    for (const auto& [line, happened, todo] : rows)
        expectCorrection(words(line), happened, todo);
    EXPECT_EQ("Falta --impressora.", ask({"estado"}, 2)["erro"]["mensagem"]);
}

TEST_F(ToolUsage, APrinterIsNamedByModelAndPlace)
{
    const std::pair<const char*, const char*> rows[] = {
        {"VANTA", "falta o \"@\" entre o modelo e o lugar."},
        {"XPTO@usb", "os modelos são VANTA, VESPA, VOLTA, ORLA-K, PINTA, RANZA, RANZAPRO, SORBE, "
                     "SALVI, DUNEL, TESMO."},
        {"VANTA@lpt1", "depois do \"@\" vem net:, com: ou usb."},
        {"VANTA@usb:1", "depois de \"usb\" não vem nada."},
        {"VANTA@net:", "falta o endereço ou a porta."},
        {"VANTA@net:a:b", "\"b\" não é um número."},
        {"VANTA@net:a:65536", "a porta vai de 1 a 65535."},
        {"VANTA@com:COM1:14400", "a velocidade é 300, 1200, 2400, 4800, 9600, 19200, 38400, 57600 "
                                 "ou 115200."},
    };
    for (const auto& [printer, reason] : rows)
        expectCorrection(
            {"estado", "-i", printer},
            "A impressora \"" + std::string(printer) + "\" não foi entendida: " + reason,
            "Escreva por exemplo VANTA@net:192.168.0.10, VANTA@com:COM3:9600 ou VANTA@usb.");
}

TEST_F(ToolUsage, AVirtualPrinterNeedsPortsOfItsOwn)
{
    const TcpPrinter other;
    const std::string taken = std::to_string(other.port());
    for (const std::string& ports :
         {"--porta " + taken + " --pagina 0", "--porta 0 --pagina " + taken})
        EXPECT_TRUE(begins(run(words("impressora " + ports)), 2,
                           "O que houve: A porta " + taken + " já está em uso."));
    EXPECT_EQ("O modelo \"XPTO\" não existe.",
              ask(words("impressora --modelo XPTO"), 2)["erro"]["mensagem"]);
}

TEST_F(ToolUsage, HelpIsThereForEveryCommandAndPortuguese)
{
    const ProgramResult all = run({"--ajuda"});
    for (const char* line :
         {"testar", "validar", "visualizar", "impressora", "estado", "imprimir", "listar", "erro",
          "diagnostico", "log", "log ligar", "log desligar", "log mostrar", "log pasta"}) {
        const Arguments command = words(line, {"--ajuda"});
        EXPECT_TRUE(says(all, 0, "\n  " + command.front() + ' '));
        const ProgramResult help = run(command);
        EXPECT_TRUE(says(help, 0, "\nUso: q7 " + command.front()));
        for (const char* english : {"Options", "TEXT", "REQUIRED", "Usage", "UINT", "SUBCOMMAND"})
            EXPECT_EQ(std::string::npos, help.output.find(english)) << help.output;
    }
}

} // namespace
