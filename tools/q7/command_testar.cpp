// q7 testar: opens the printer, says who and how it is, and prints a page to look at.

#include "commands.h"
#include "model_names.h"
#include "open_printer.h"
#include "test_page.h"
#include "text.h"

#include <chrono>
#include <nlohmann/json.hpp>

namespace q7tool
{
namespace
{

constexpr auto longestPrinting = std::chrono::seconds(20);

void tellWhoAnswers(const OpenPrinter& printer, const PrinterAddress& address, Answer& answer)
{
    // A label printer speaks another language and would print the questions.
    if (address.model == "TESMO")
        return;
    const std::string name = printer.identification(Q7_ID_MODEL);
    if (name.empty())
        return;
    answer.fact("responde_como", "Responde como", name);
    const std::string model = modelNamedIn(name);
    if (!model.empty() && model != address.model)
        answer.remark("A impressora é uma " + model + ", e foi aberta como " + address.model +
                      ": use " + model + " na sua aplicação.");
    const std::pair<const char*, const char*> facts[] = {{"fabricante", "Fabricante"},
                                                         {"firmware", "Firmware"},
                                                         {"numero_de_serie", "Número de série"}};
    const int kinds[] = {Q7_ID_MAKER, Q7_ID_FIRMWARE, Q7_ID_SERIAL};
    for (std::size_t i = 0; i < std::size(kinds); ++i) {
        const std::string text = printer.identification(kinds[i]);
        if (!text.empty())
            answer.fact(facts[i].first, facts[i].second, text);
    }
}

/** The printer answers in the order of what it was sent: once it says who it is, the page is out.
 *  Returns whether it did. */
bool waitForPrinter(const OpenPrinter& printer)
{
    const auto deadline = std::chrono::steady_clock::now() + longestPrinting;
    while (std::chrono::steady_clock::now() < deadline) {
        if (!printer.identification(Q7_ID_MODEL).empty())
            return true;
        demandPaperAndCover(printer.askState());
    }
    return false;
}

Exit test(const CommonOptions& common, const PrinterAddress& address, Answer& answer)
{
    const PrinterLibrary library(common.library);
    if (const std::string concern = versionConcern(library); !concern.empty())
        answer.remark("Atenção: " + concern);
    answer.fact("impressora", "Impressora", address.text(),
                address.model + " em " + address.placeInWords());
    OpenPrinter printer(library, address);
    answer.fact("abriu", "Abriu", true);
    tellWhoAnswers(printer, address, answer);
    tellState(printer.state(), answer);
    demandPaperAndCover(printer.state());

    answer.remark("Imprimindo a página de teste...");
    printTestPage(library, address.model);
    if (printer.state().isKnown() && address.model != "TESMO") {
        const bool printed = waitForPrinter(printer);
        answer.fact("terminou", "A impressora terminou", printed,
                    printed ? "sim" : "não respondeu em 20 s; veja o papel");
        const PrinterState after = printer.askState();
        printer.close();
        demandPaperAndCover(after);
    } else {
        printer.close();
    }
    answer.remark("Confira no papel: acentos, estilos, código de barras, QR code e as colunas.");
    return Exit::Done;
}

} // namespace

void addTestar(const CommandLine& line)
{
    CLI::App* command = line.program.add_subcommand(
        "testar", "Abre a impressora, diz quem responde e imprime uma página de teste");
    auto printer = std::make_shared<std::string>();
    addPrinterOption(*command, *printer);
    command->footer("Quando não abre, diz a causa: desligada, recusada, outro modelo, resposta "
                    "atrasada,\nporta em uso ou inexistente, nome desconhecido.\n"
                    "Exemplo:\n  q7 testar --impressora VANTA@net:192.168.0.10");
    command->callback([line, printer] {
        line.action = [&common = line.common, printer](Answer& answer) {
            return test(common, parsePrinterAddress(*printer), answer);
        };
    });
}

} // namespace q7tool
