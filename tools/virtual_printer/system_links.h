// What of the printer's links hangs on the operating system.
#pragma once

#include "line.h"

#include <asio/io_context.hpp>

#include <string>

namespace virtual_printer
{

/** Lets the port be taken again at once after an earlier printer's end, and by nobody else while
 *  this one has it. Before bind. Throws std::system_error. */
void claimPort(asio::ip::tcp::acceptor::native_handle_type listener);

/** Makes a slow reader felt by the sender: keeps what the systems hold back for it small, as far as
 *  this system can. Before listen. */
void keepBuffersSmall(asio::ip::tcp::acceptor& acceptor);

struct SerialLine {
    std::unique_ptr<Line> line;
    std::string path; // of the device that a program opens as its serial port
};

/** A serial line whose far end is a device of this system.
 *  link: a symbolic link to make to it; empty for none.
 *  Throws std::system_error, always so where the system has no such lines. */
SerialLine openSerialLine(asio::io_context& context, const std::string& link);

} // namespace virtual_printer
