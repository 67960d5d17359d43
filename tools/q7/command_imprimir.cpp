// q7 imprimir: prints a fiscal document from its file.

#include "commands.h"
#include "document_printing.h"
#include "open_printer.h"

#include <nlohmann/json.hpp>

namespace q7tool
{
namespace
{

struct PrintOptions {
    std::string printer;
    DocumentOptions document;
};

Exit print(const CommonOptions& common, const PrintOptions& options, Answer& answer)
{
    const PrinterAddress address = parsePrinterAddress(options.printer);
    const PrintableDocument document = readDocument(options.document);
    answer.fact("documento", "Documento", nameOf(document.file.kind));
    answer.fact("chave", "Chave", document.file.key);

    const PrinterLibrary library(common.library);
    OpenPrinter printer(library, address);
    answer.fact("impressora", "Impressora", address.text());
    if (!printer.state().isKnown())
        answer.remark("A impressora não respondeu ao pedido de estado; imprimindo assim mesmo.");
    demandPaperAndCover(printer.state());
    printDocument(library, document);

    const PrinterState after = printer.state().isKnown() ? printer.askState() : printer.state();
    printer.close();
    tellState(after, answer);
    if (after.failure == Q7_ERR_NOT_OPEN)
        throw Failure{Exit::NoLink, "A conexão com a impressora caiu durante a impressão.",
                      "Veja o que saiu no papel e imprima de novo.", after.failure};
    if (!after.canPrint())
        answer.remark(
            "O papel acabou ou a tampa foi aberta durante a impressão: parte pode não ter "
            "saído.");
    demandPaperAndCover(after);
    answer.fact("impresso", "Impresso", true);
    return Exit::Done;
}

} // namespace

void addImprimir(const CommandLine& line)
{
    CLI::App* command =
        line.program.add_subcommand("imprimir", "Imprime um CF-e, um cancelamento ou uma NFC-e");
    auto options = std::make_shared<PrintOptions>();
    addDocumentOptions(*command, options->document);
    addPrinterOption(*command, options->printer);
    command->footer("Exemplos:\n"
                    "  q7 imprimir venda.xml --impressora VANTA@usb\n"
                    "  q7 imprimir cancelamento.xml --venda venda.xml --impressora VANTA@usb\n"
                    "  q7 imprimir nfce.xml --opcoes 0xC0 --impressora VESPA@com:COM3");
    command->callback([line, options] {
        line.action = [&common = line.common, options](Answer& answer) {
            return print(common, *options, answer);
        };
    });
}

} // namespace q7tool
