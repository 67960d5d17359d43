// A USB printer that the system offers as a file.
#pragma once

#include "endpoint.h"

#include <asio/io_context.hpp>

#include <QString>
#include <memory>

namespace q7
{

struct UsbOpened {
    std::unique_ptr<Endpoint> endpoint; // null when it could not be opened
    int error;                          // the system's error number
};

/** Opens a device path that findUsbPrinter returned, for reading and writing. */
UsbOpened openUsb(asio::io_context& context, const QString& path);

} // namespace q7
