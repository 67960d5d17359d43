// q7 estado: paper, cover and drawer in words.

#include "commands.h"
#include "open_printer.h"

#include <nlohmann/json.hpp>

namespace q7tool
{
namespace
{

Exit tell(const CommonOptions& common, const PrinterAddress& address, Answer& answer)
{
    const PrinterLibrary library(common.library);
    OpenPrinter printer(library, address);
    const PrinterState state = printer.state();
    printer.close();
    answer.fact("impressora", "Impressora", address.text());
    tellState(state, answer);
    if (!state.isKnown())
        throw Failure{
            Exit::NoLink, "A impressora não respondeu ao pedido de estado.",
            "Desligue, ligue e tente de novo. Algumas impressoras USB não respondem; então "
            "só se vê no papel.",
            state.failure};
    demandPaperAndCover(state);
    return Exit::Done;
}

} // namespace

void addEstado(const CommandLine& line)
{
    CLI::App* command = line.program.add_subcommand(
        "estado", "Mostra papel, tampa e gaveta; sai com 4 quando não pode imprimir");
    auto printer = std::make_shared<std::string>();
    addPrinterOption(*command, *printer);
    command->footer("Exemplo:\n  q7 estado --impressora VANTA@net:192.168.0.10");
    command->callback([line, printer] {
        line.action = [&common = line.common, printer](Answer& answer) {
            return tell(common, parsePrinterAddress(*printer), answer);
        };
    });
}

} // namespace q7tool
