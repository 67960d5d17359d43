// The virtual printer together with its page.
#pragma once

#include "printed_symbol.h"
#include "server.h"

#include <memory>
#include <string>
#include <system_error>

namespace printer_page
{

struct PrinterPageSettings {
    virtual_printer::ServerSettings printer; // its links, model, state and manners
    virtual_printer::Graphics graphics = {}; // stored in it
    std::uint16_t pagePort = 8080;           // 0: any
    std::size_t keptReceipts = 200;
};

/** A port could not be had. */
struct PortError : std::system_error {
    PortError(std::uint16_t wanted, bool inUse, const std::error_code& error)
        : std::system_error(error), port(wanted), isInUse(inUse)
    {
    }
    std::uint16_t port;
    bool isInUse; // by another program
};

class PrinterPage
{
public:
    /** Opens the printer's links and the page, which 127.0.0.1 alone can reach.
     *  Throws PortError. */
    explicit PrinterPage(const PrinterPageSettings& settings);
    ~PrinterPage();
    PrinterPage(const PrinterPage&) = delete;
    PrinterPage& operator=(const PrinterPage&) = delete;

    std::uint16_t printerPort() const;
    std::uint16_t pagePort() const;
    /** What to open in a browser: "http://127.0.0.1:8080/". */
    std::string pageAddress() const;

    /** Serves until stop(), or a signal by which a user ends a program. */
    void run();
    /** Ends run(); any thread. */
    void stop();

private:
    struct Parts;
    std::unique_ptr<Parts> m_parts;
};

} // namespace printer_page
