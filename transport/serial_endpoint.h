// A serial port with a printer on it.
#pragma once

#include "endpoint.h"

#include <asio/io_context.hpp>

#include <QString>
#include <memory>

namespace q7
{

struct SerialOpened {
    std::unique_ptr<Endpoint> endpoint; // null when the port could not be opened
    int result;                         // 0 or a Q7_ERR_SERIAL_* code, Q7_ERR_FAILED
};

/** Opens a port with 8 data bits, no parity, one stop bit, no flow control, DTR and RTS on.
 *  name: the port's name as a caller gave it, in capitals. bitsPerSecond: a usual speed. */
SerialOpened openSerial(asio::io_context& context, const QString& name, int bitsPerSecond);

} // namespace q7
