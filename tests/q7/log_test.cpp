// The log: switched, shown, and handed to the support without what is nobody else's business.

#include "tool.h"

#include <sys/resource.h>

using namespace q7test;

namespace
{

using ToolLog = Tool;

TEST_F(ToolLog, IsSwitchedOnAndOffKeepingWhatItHolds)
{
    EXPECT_EQ(false, ask({"log", "pasta"}, 0)["log_ligado"]);
    ask({"log", "ligar"}, 0);
    const nlohmann::json folder = ask({"log", "pasta"}, 0);
    EXPECT_EQ(data.path() + '/', folder["pasta"]);
    EXPECT_EQ(true, folder["log_ligado"]);
    EXPECT_EQ(true, folder["gravavel"]);

    run({"--versao"});
    const std::string held = data.read("log_q7.txt");
    EXPECT_NE(std::string::npos, held.find("[Biblioteca carregada 01.01.00]\n"));
    ask({"log", "ligar"}, 0); // takes nothing away
    EXPECT_EQ(held, data.read("log_q7.txt"));

    const std::string kept = ask({"log", "desligar"}, 0)["guardado"];
    EXPECT_EQ(held, data.read(kept.substr(data.path().size() + 1)));
    EXPECT_EQ(false, ask({"log", "pasta"}, 0)["log_ligado"]);
    ask({"log", "ligar"}, 0);
    ask({"log", "desligar", "--apagar"}, 0);
    EXPECT_EQ("", data.read("log_q7.txt"));
}

TEST_F(ToolLog, ShowsCallsResultsAndBytes)
{
    const auto line = [](const std::string& kind, const std::string& message) {
        return "[15.11.2026-13:42:40.123].....[" + kind + message + "]\n";
    };
    const std::string call = "FUNCAO]...............[";
    const std::string sent = "COMANDOSENVIADOS].....[";
    data.write("log_q7.txt",
               "cortado no começo]\n" + line("INFO]................[", "Biblioteca carregada 1") +
                   line(call, "ImpressaoTexto. PARAMETROS:a\r\nb,1,0,0") + line(sent, "1B61") +
                   line(sent, "01") + line(sent, "610A62") +
                   line(call, "ImpressaoTexto. RETORNO:3") + line(call, "Corte. PARAMETROS:0") +
                   line(sent, "1D56") + line(call, "Corte. RETORNO:-44") +
                   line("LOGINDEFINIDO]........[", "livre"));
    EXPECT_EQ(
        "15.11.2026\n"
        "13:42:40.123  Biblioteca carregada 1\n"
        "13:42:40.123  ImpressaoTexto(a b,1,0,0)\n"
        "              1B 61 01                          ESC a 1                   alinhamento\n"
        "              \"a\"\n"
        "              0A                                LF\n"
        "              \"b\"\n"
        "13:42:40.123  ImpressaoTexto devolveu 3\n"
        "13:42:40.123  Corte(0)\n"
        "              1D 56                             incompleto GS V           corte\n"
        "13:42:40.123  Corte devolveu -44: Nada foi enviado\n"
        "13:42:40.123  livre\n",
        run({"log", "mostrar"}).output);
    EXPECT_EQ("13:42:40.123  livre\n", run(words("log mostrar --ultimas 1")).output);
    EXPECT_EQ(2, run({"log", "mostrar", data.path()}).exitCode);
}

TEST_F(ToolLog, OfAnyLengthTakesLittleMemory)
{
    // A message of 32 MB, hexadecimal digits of 32 MB and a line that never ends.
    const std::string head = "[15.11.2026-13:42:40.123].....[";
    const std::string much(32U << 20U, 'A');
    data.write("log_q7.txt", head + "FUNCAO]...............[DirectIO. PARAMETROS:" + much + "]\n" +
                                 head + "COMANDOSENVIADOS].....[" + much + "]\n" + head +
                                 "FUNCAO]...............[Corte. RETORNO:" + much);
    EXPECT_TRUE(says(run(words("log mostrar --ultimas 3")), 0, "... e mais "));
#ifndef __SANITIZE_ADDRESS__ // whose quarantine keeps what was freed
    rusage used = {};
    getrusage(RUSAGE_CHILDREN, &used);
    EXPECT_LT(used.ru_maxrss, 100 * 1024);
#endif
}

TEST_F(ToolLog, GoesToTheSupportWithoutWhatIsPrivate)
{
    data.write("log_q7.txt", "");
    data.write("q7_usb.ini", "[VANTA]\nvendor_id=0abc\n");
    TcpPrinter printer;
    for (const char* document :
         {Q7_DOCUMENTS "/autorizada-consumidor-cpf.xml", Q7_DOCUMENTS "/venda-completa.xml"})
        ask(words("imprimir --csc 7 SEGREDO123 -i", {at(printer), document}), 0);
    ASSERT_NE(std::string::npos, data.read("log_q7.txt").find("SEGREDO123"));

    const std::string file = data.path() + "/caso.txt";
    ask({"diagnostico", "-i", at(printer), "-o", file}, 0);
    const nlohmann::json asJson = nlohmann::json::parse(data.read("caso.txt"));
    EXPECT_EQ("presente", asJson["impressora"]["papel"]);
    EXPECT_EQ("vendor_id=0abc", asJson["dados"]["q7_usb.ini"]["linhas"][1]);

    EXPECT_EQ(0, run({"diagnostico", "-i", "VANTA@net:127.0.0.1:1", "-o", file}).exitCode);
    const std::string text = data.read("caso.txt");
    for (const char* there :
         {"ImprimeXMLNFCe(XML de ", " bytes,7,***,0)", "ImprimeXMLSAT devolveu 0",
          "O que houve: A máquina 127.0.0.1 recusou", "vendor_id=0abc",
          "Versão da biblioteca: 01.01.00", "Modelos e colunas por linha"})
        EXPECT_NE(std::string::npos, text.find(there)) << there;
    for (const char* gone : {"SEGREDO123", "<infNFe", "418.730.952-79", "41873095279",
                             "32.909.099/0001-35", "32909099000135"})
        EXPECT_EQ(std::string::npos, text.find(gone)) << gone;
}

} // namespace
