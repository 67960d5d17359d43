// Printers in every situation: each names its cause, with the exit code of its kind.

#include "bytes.h"
#include "command_parser.h"
#include "deaf_port.h"
#include "tool.h"

#include <regex>

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

using namespace q7test;

namespace
{

PrinterScript behaving(const std::function<void(PrinterScript&)>& edit)
{
    PrinterScript script;
    edit(script);
    return script;
}

struct Situation {
    const char* name;
    PrinterScript printer;
    const char* model;
    int exitCode;
    const char* happened; // empty when nothing fails
    const char* code;
    const char* todo;
};

const std::string otherTodo =
    "Confira se o endereço é o da impressora certa e se ela está na emulação ESC/POS. Modelos "
    "conhecidos: VANTA, VESPA, VOLTA, ORLA-K, PINTA, RANZA, RANZAPRO, SORBE, SALVI, DUNEL, TESMO.";

const Situation situations[] = {
    {"Ready", {}, "VANTA", 0, "", "", ""},
    {"NearEnd", behaving([](auto& s) { s.state.paperNearEnd = true; }), "vanta", 0, "", "", ""},
    {"NameHoldsTheOther", behaving([](auto& s) { s.model = "RANZAPRO"; }), "RANZA", 0, "", "", ""},
    {"LabelPrinter", behaving([](auto& s) { s.model = "TESMO"; }), "TESMO", 0, "", "", ""},
    {"AnotherModel", behaving([](auto& s) { s.model = "RANZAPRO"; }), "VANTA", 1,
     "Quem respondeu em {} é uma RANZAPRO, não uma VANTA.", "-3 (Q7_ERR_MODEL)",
     "Use o modelo que respondeu: --impressora RANZAPRO@{address}."},
    {"UnknownModel",
     behaving([](auto& s) { s.answers[hex("1D 49 43")] = "_XPTO 80" + std::string(1, '\0'); }),
     "VANTA", 1, "Quem respondeu em {} diz ser \"XPTO 80\", que não é um modelo conhecido.",
     "-5 (Q7_ERR_UNKNOWN_PRINTER)", otherTodo.c_str()},
    {"AnswersLate", behaving([](auto& s) { s.lateMs = 1500; }), "VANTA", 3,
     "A impressora respondeu só depois de 1,5 s; a biblioteca espera 0,75 s.",
     "-5 (Q7_ERR_UNKNOWN_PRINTER)",
     "Espere a impressora terminar o que está fazendo e tente de novo. Se for sempre assim, veja a "
     "rede, o cabo e se outro programa a está usando."},
    {"PaperOut", behaving([](auto& s) { s.state.paperOut = true; }), "VANTA", 4,
     "A impressora está sem papel.", "saída 4 do q7",
     "Ponha uma bobina nova, com o lado térmico para a cabeça, e feche a tampa."},
    {"CoverOpen", behaving([](auto& s) { s.state.coverOpen = true; }), "VANTA", 4,
     "A tampa da impressora está aberta.", "saída 4 do q7", "Feche a tampa até travar."},
    {"TellsNoState", behaving([](auto& s) {
         s.silent = true;
         s.promptReplies = 1;
     }),
     "VANTA", 3, "A impressora não respondeu ao pedido de estado.", "-81 (Q7_ERR_NO_REPLY)",
     "Desligue, ligue e tente de novo. Algumas impressoras USB não respondem; então só se vê no "
     "papel."},
};

using ToolOnPrinter = Tool;

TEST_F(ToolOnPrinter, TellsTheState)
{
    for (const Situation& situation : situations) {
        for (const FakePrinter::Line line : {FakePrinter::Line::Tcp, FakePrinter::Line::Serial}) {
            const bool isNetwork = line == FakePrinter::Line::Tcp;
            SCOPED_TRACE(std::string(situation.name) + (isNetwork ? " over TCP" : " on a port"));
            FakePrinter printer(situation.printer, line);
            const ProgramResult result = run({"estado", "-i", at(printer, situation.model)});
            if (situation.exitCode == 0) {
                EXPECT_TRUE(says(result, 0, "Pode imprimir: sim\n"));
                continue;
            }
            const std::string place = isNetwork
                                          ? "127.0.0.1, porta " + std::to_string(printer.port())
                                          : printer.serialPath() + " a 9600 bits por segundo";
            const std::string address = at(printer, "").substr(1) + (isNetwork ? "" : ":9600");
            std::string expected = threeLines(situation.happened, situation.code, situation.todo);
            expected = std::regex_replace(expected, std::regex("\\{\\}"), place);
            expected = std::regex_replace(expected, std::regex("\\{address\\}"), address);
            EXPECT_EQ(situation.exitCode, result.exitCode);
            EXPECT_EQ(expected, result.output.substr(std::min(result.output.size(),
                                                              result.output.find("O que houve"))));
        }
    }
}

using ToolWithoutPrinter = Tool;

TEST_F(ToolWithoutPrinter, NamesTheCause)
{
    FakePrinter silent(behaving([](auto& s) { s.silent = true; }), FakePrinter::Line::Tcp);
    FakePrinter mute(behaving([](auto& s) { s.silent = true; }), FakePrinter::Line::Serial);
    PtyPrinter taken;
    const int holder = ::open(taken.serialPath().c_str(), O_RDWR | O_NOCTTY);
    ASSERT_EQ(0, ::flock(holder, LOCK_EX | LOCK_NB));
    const std::string deaf = std::to_string(deafPort());
    const struct {
        std::string printer;
        std::string happened;
        std::string code;
        std::string todo; // how it begins
    } rows[] = {
        {"net:127.0.0.1:1", "A máquina 127.0.0.1 recusou a conexão na porta 1.",
         "-4 (Q7_ERR_NOT_OPEN)", "O endereço existe, mas nenhuma impressora atende ali"},
        {"net:127.0.0.1:" + deaf, "Ninguém respondeu em 127.0.0.1, porta " + deaf + '.',
         "5 (Q7_NET_TIMEOUT)", "Veja se a impressora está ligada"},
        {"net:nao-existe.invalid", "O nome \"nao-existe.invalid\" não foi encontrado na rede.",
         "2 (Q7_NET_HOST_NOT_FOUND)", "Confira o nome, ou use o número IP"},
        {at(silent).substr(6),
         "A conexão com 127.0.0.1, porta " + std::to_string(silent.port()) +
             " foi aceita, mas a impressora não respondeu quem é.",
         "-5 (Q7_ERR_UNKNOWN_PRINTER)", "Veja se ela está sem papel, com a tampa aberta"},
        {at(mute).substr(6),
         "A porta " + mute.serialPath() +
             " abriu, mas a impressora não respondeu a 9600 bits por segundo.",
         "-5 (Q7_ERR_UNKNOWN_PRINTER)", "Veja se a impressora está ligada e no cabo desta porta"},
        {at(taken).substr(6),
         "A porta " + taken.serialPath() + " está em uso por outro programa, ou sem permissão.",
         "-13 (Q7_ERR_SERIAL_DENIED)", "Feche o programa que a está usando"},
        {"com:COM77", "A porta COM77 não existe.", "-12 (Q7_ERR_SERIAL_NOT_FOUND)", ""},
    };
    for (const auto& row : rows) {
        std::string expected = threeLines(row.happened, row.code, row.todo);
        expected.pop_back(); // the remedy goes on
        for (const char* command : {"estado", "testar"})
            EXPECT_TRUE(says(run({command, "-i", "VANTA@" + row.printer}), 3, expected));
    }
    ::close(holder);
}

using ToolPrints = Tool;

TEST_F(ToolPrints, TheTestPageAndWaitsForIt)
{
    PrinterScript slow;
    slow.readBytesPerSecond = 4000; // the page takes some 300 ms
    TcpPrinter printer(slow);
    const nlohmann::json answer = ask({"testar", "-i", at(printer)}, 0);
    EXPECT_EQ("VANTA", answer["responde_como"]);
    EXPECT_EQ(true, answer["terminou"]);
    std::string texts;
    int symbols = 0;
    const auto commands = virtual_printer::parseAll(printer.waitForClose());
    for (const virtual_printer::Command& command : commands) {
        texts += command.op == virtual_printer::Op::Text ? command.bytes + '|' : "";
        symbols += command.op == virtual_printer::Op::Barcode ||
                   command.op == virtual_printer::Op::QrPrint;
    }
    EXPECT_EQ(2, symbols);
    EXPECT_NE(std::string::npos, texts.find(hex("E1 E0 E2 E3 E4"))) << texts; // áàâãä
    EXPECT_NE(std::string::npos, texts.find("|123456789012345678901234567890123456789012345678|"));
    EXPECT_NE(std::string::npos,
              texts.find("|1234567890123456789012345678901234567890123456789012345678901234|"));
}

TEST_F(ToolPrints, ALongerNamedPrinterAndSaysSo)
{
    TcpPrinter printer(behaving([](auto& s) { s.model = "RANZAPRO"; }));
    EXPECT_TRUE(says(run({"testar", "-i", at(printer, "RANZA")}), 0,
                     "A impressora é uma RANZAPRO, e foi aberta como RANZA"));
}

TEST_F(ToolPrints, DocumentsAsTheLibraryPrintsThem)
{
    const struct {
        const char* line;
        const char* golden;
        const char* document;
    } rows[] = {
        {Q7_DOCUMENTS "/venda-simples.xml", "sat/venda-simples.VANTA.0.txt", "CF-e de venda (SAT)"},
        {Q7_DOCUMENTS "/venda-simples.xml --opcoes 6", "sat/venda-simples.VANTA.6.txt",
         "CF-e de venda (SAT)"},
        {Q7_DOCUMENTS "/cancelamento.xml --venda " Q7_DOCUMENTS "/venda-simples.xml",
         "sat/cancelamento.VANTA.0.txt", "CF-e de cancelamento (SAT)"},
        {Q7_DOCUMENTS "/autorizada-consumidor-cpf.xml", "nfce/consumer_vanta.txt", "NFC-e"},
    };
    for (const auto& [line, golden, document] : rows) {
        TcpPrinter printer;
        const nlohmann::json answer =
            ask(words("imprimir " + std::string(line), {"-i", at(printer)}), 0);
        EXPECT_EQ(document, answer["documento"]);
        EXPECT_EQ(true, answer["impresso"]);
        EXPECT_TRUE(printedAsGolden(golden, printer.waitForClose(), feedAndCut + stateQueries));
    }
}

TEST_F(ToolPrints, NothingWithoutPaper)
{
    TcpPrinter printer(behaving([](auto& s) { s.state.paperOut = true; }));
    EXPECT_TRUE(
        says(run({"imprimir", Q7_DOCUMENTS "/venda-simples.xml", "-i", at(printer)}), 4, ""));
    EXPECT_TRUE(sameBytes(beforeDocument, printer.waitForClose()));
}

} // namespace
