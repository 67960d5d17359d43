// q7 impressora: the virtual printer, and a page to look at what it prints.

#include "commands.h"
#include "model_names.h"
#include "printer_page.h"
#include "system_name.h"

#include <nlohmann/json.hpp>

namespace q7tool
{
namespace
{

struct VirtualPrinterOptions {
    std::uint16_t port = 9100;
    std::uint16_t pagePort = 8080;
    std::string model = "VANTA";
};

Exit serve(const VirtualPrinterOptions& options, Answer& answer)
{
    const virtual_printer::Model* model = virtual_printer::findModel(options.model);
    if (model == nullptr)
        throw Failure{Exit::Usage,
                      "O modelo \"" + options.model + "\" não existe.",
                      "Os modelos são " + allModelNames() + '.',
                      {}};
    printer_page::PrinterPageSettings settings;
    settings.printer.model = *model;
    settings.printer.port = options.port;
    settings.pagePort = options.pagePort;
    try {
        printer_page::PrinterPage page(settings);
        const std::string address =
            std::string(model->name) + "@net:127.0.0.1:" + std::to_string(page.printerPort());
        // At once, for those who wait for it.
        answer.record({{"impressora", address}, {"pagina", page.pageAddress()}},
                      "Impressora: " + address + "\nPágina: " + page.pageAddress() +
                          "\nCtrl+C termina.");
        page.run();
    } catch (const printer_page::PortError& error) {
        throw Failure{Exit::Usage,
                      "A porta " + std::to_string(error.port) +
                          (error.isInUse ? " já está em uso."
                                         : " não pôde ser aberta: " +
                                               systemMessage(error.code().value()) + '.'),
                      "Escolha outra com --porta (a impressora) ou --pagina (a página); 0 é "
                      "qualquer uma.",
                      {}};
    }
    return Exit::Done;
}

} // namespace

void addImpressora(const CommandLine& line)
{
    CLI::App* command = line.program.add_subcommand(
        "impressora", "Faz de impressora, com uma página que mostra o que imprime");
    auto options = std::make_shared<VirtualPrinterOptions>();
    command->add_option("--porta", options->port, "A porta da impressora; 9100, ou 0 para qualquer")
        ->option_text("N");
    command
        ->add_option("--pagina", options->pagePort, "A porta da página; 8080, ou 0 para qualquer")
        ->option_text("N");
    command->add_option("--modelo", options->model, "O modelo de que ela faz as vezes; VANTA")
        ->option_text("MODELO");
    command->footer("Só este computador alcança a impressora e a página.\n"
                    "Exemplo:\n  q7 impressora\n"
                    "  e noutra janela: q7 testar --impressora VANTA@net:127.0.0.1");
    command->callback([line, options] {
        line.action = [options](Answer& answer) { return serve(*options, answer); };
    });
}

} // namespace q7tool
