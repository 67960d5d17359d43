#include "printer_page.h"

#include "page_server.h"
#include "shelf_job.h"
#include "table_glyphs.h"

#include <asio/error.hpp>

namespace printer_page
{

using namespace virtual_printer;

namespace
{

/** Makes what listens on that port. */
template <typename Make> auto onPort(std::uint16_t port, Make make)
{
    try {
        return make();
    } catch (const std::system_error& error) {
        const bool isInUse = error.code() == asio::error::address_in_use ||
                             error.code() == std::errc::address_in_use;
        throw PortError(port, isInUse, error.code());
    }
}

} // namespace

struct PrinterPage::Parts {
    explicit Parts(const PrinterPageSettings& settings)
        : graphics(settings.graphics),
          shelf({settings.keptReceipts, ReceiptShelf::Limits().bytes}),
          server(onPort(settings.printer.port,
                        [&] {
                            return Server(settings.printer, [this](int, const Model& model) {
                                return std::make_unique<ShelfJob>(shelf, model, glyphs, graphics);
                            });
                        })),
          switches(server, settings.printer),
          page(onPort(settings.pagePort, [&] {
              return PageServer(settings.pagePort, "net:127.0.0.1:" + std::to_string(server.port()),
                                shelf, switches);
          }))
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
