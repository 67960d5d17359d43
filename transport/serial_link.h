// A serial port with a printer on it.
#pragma once

#include "link.h"

#include <QString>
#include <memory>

namespace q7
{

struct SerialOpened {
    std::unique_ptr<Link> link; // null when the port could not be opened
    int result;                 // 0 or a Q7_ERR_SERIAL_* code, Q7_ERR_FAILED
};

/** Opens a port with 8 data bits, no parity, one stop bit, no flow control. address: the port's name
 *  as a caller gave it, in capitals. A library that was built without serial ports logs that and
 *  answers Q7_ERR_FAILED. */
SerialOpened openSerialLink(const QString& address, int bitsPerSecond);

} // namespace q7
