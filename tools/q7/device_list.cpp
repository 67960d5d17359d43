#include "device_list.h"

#include "model_names.h"
#include "model_rows.h"

#include <nlohmann/json.hpp>

namespace q7tool
{
namespace
{

/** The lines that make the library find this printer. */
std::string iniLines(const UsbPrinter& printer)
{
    const std::string model = modelNamedIn(printer.product);
    return '[' + (model.empty() ? "MODELO" : model) + "]\nvendor_id=" + printer.vendorId +
           "\nproduct_id=" + printer.productId + '\n';
}

Json columnCount(int columns)
{
    return columns > 0 ? Json(columns) : Json();
}

} // namespace

void tellSerialPorts(const std::vector<SerialPort>& ports, Answer& answer)
{
    std::vector<std::vector<Json>> rows;
    rows.reserve(ports.size());
    for (const SerialPort& port : ports)
        rows.push_back({port.name, port.description});
    answer.beginSection("seriais", "Portas seriais");
    answer.table("portas", {{"nome", "Porta"}, {"descricao", "Descrição"}}, rows,
                 "nenhuma porta serial");
    answer.endSection();
}

void tellUsbPrinters(const std::vector<UsbPrinter>& printers, Answer& answer)
{
    std::vector<std::vector<Json>> rows;
    rows.reserve(printers.size());
    for (const UsbPrinter& printer : printers)
        rows.push_back({printer.vendorId, printer.productId, printer.product, printer.path,
                        iniLines(printer)});
    answer.beginSection("usb", "Impressoras USB");
    std::vector<Column> columns = {{"vendor_id", "vendor_id"},
                                   {"product_id", "product_id"},
                                   {"produto", "Produto"},
                                   {"dispositivo", "Dispositivo"},
                                   {"q7_usb_ini", ""}};
    // People get the lines below the table.
    if (answer.isForPeople()) {
        columns.pop_back();
        for (std::vector<Json>& row : rows)
            row.pop_back();
    }
    answer.table("impressoras", columns, rows, "nenhuma impressora USB");
    for (const UsbPrinter& printer : printers)
        answer.remark("\nPara q7_usb.ini (o grupo leva o nome do modelo):\n" + iniLines(printer));
    answer.endSection();
}

void tellModels(Answer& answer)
{
    std::vector<std::vector<Json>> rows;
    for (const q7::PrinterModel& model : q7::builtInModels)
        rows.push_back({model.name, columnCount(model.width1), columnCount(model.width2)});
    answer.beginSection("modelos", "Modelos e colunas por linha");
    answer.table("modelos",
                 {{"nome", "Modelo"},
                  {"colunas_normal", "Letra normal"},
                  {"colunas_pequena", "Letra pequena"}},
                 rows, "");
    answer.endSection();
}

} // namespace q7tool
