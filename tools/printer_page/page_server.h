// The page over HTTP: its files, the receipts, what happens as it happens, and the switches.
#pragma once

#include "receipt_shelf.h"
#include "switches.h"

#include <memory>

namespace printer_page
{

/** Serves 127.0.0.1 alone, on threads of its own. */
class PageServer
{
public:
    /** Shelf and switches must outlive the server. port: 0 takes any. printerAddress: how the
     *  library and q7 name this printer but for the model, such as "net:127.0.0.1:9100".
     *  Throws std::system_error when the port cannot be had. */
    PageServer(std::uint16_t port, std::string printerAddress, ReceiptShelf& shelf,
               Switches& switches);
    /** Ends what is being served. */
    ~PageServer();
    PageServer(const PageServer&) = delete;
    PageServer& operator=(const PageServer&) = delete;

    std::uint16_t port() const;

private:
    struct Serving;
    std::unique_ptr<Serving> m_serving;
};

} // namespace printer_page
