#include "printer_page.h"

#include "page_server.h"
#include "shelf_job.h"
#include "table_glyphs.h"

#include <system_error>

namespace printer_page
{

using namespace virtual_printer;

struct PrinterPage::Parts {
    explicit Parts(const PrinterPageSettings& settings)
        : graphics(settings.graphics),
          shelf({settings.keptReceipts, ReceiptShelf::Limits().bytes}),
          server(settings.printer,
                 [this](int, const Model& model) {
                     return std::make_unique<ShelfJob>(shelf, model, glyphs, graphics);
                 }),
          switches(server, settings.printer),
          page(settings.pagePort, "net:127.0.0.1:" + std::to_string(server.port()), shelf, switches)
    {
    }

    TableGlyphs glyphs;
    Graphics graphics;
    ReceiptShelf shelf;
    Server server;
    Switches switches;
    PageServer page;
};

PrinterPage::PrinterPage(const PrinterPageSettings& settings)
    : m_parts(std::make_unique<Parts>(settings))
{
}

PrinterPage::~PrinterPage() = default;

std::uint16_t PrinterPage::printerPort() const
{
    return m_parts->server.port();
}

std::uint16_t PrinterPage::pagePort() const
{
    return m_parts->page.port();
}

std::string PrinterPage::pageAddress() const
{
    return "http://127.0.0.1:" + std::to_string(pagePort()) + "/";
}

void PrinterPage::run()
{
    m_parts->server.stopOnSignals();
    m_parts->server.run();
}

void PrinterPage::stop()
{
    m_parts->server.stop();
}

} // namespace printer_page
