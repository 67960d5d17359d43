// q7 listar: what is plugged in, and which models the library knows.

#include "commands.h"
#include "device_list.h"

#include <nlohmann/json.hpp>

namespace q7tool
{

void addListar(const CommandLine& line)
{
    CLI::App* command =
        line.program.add_subcommand("listar", "Lista portas seriais, impressoras USB e modelos");
    command->footer("As linhas para q7_usb.ini vão no arquivo q7_usb.ini da pasta de dados\n"
                    "(q7 log pasta diz qual é).");
    command->callback([line] {
        line.action = [](Answer& answer) {
            tellSerialPorts(serialPorts(), answer);
            tellUsbPrinters(usbPrinters(), answer);
            tellModels(answer);
            return Exit::Done;
        };
    });
}

} // namespace q7tool
