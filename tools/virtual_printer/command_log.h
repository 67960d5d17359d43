// The bytes in a library log, so that a customer's log can be turned into a picture.
#pragma once

#include <istream>
#include <string>
#include <vector>

namespace virtual_printer
{

/** What the log says was sent over one connection. */
struct LoggedJob {
    std::string model; // as the application named it; empty when the log does not show it
    std::string bytes;
};

/** Reads the lines tagged COMANDOSENVIADOS. A line that opens a connection begins the next job;
 *  jobs without bytes are left out. Lines of any other kind, and what surrounds the tag, do not
 *  matter, so an excerpt will do.
 *  badLines: the numbers, from 1, of tagged lines that do not hold pairs of hexadecimal digits;
 *  such a line gives the pairs before the fault. */
std::vector<LoggedJob> readCommandLog(std::istream& log, std::vector<int>& badLines);

} // namespace virtual_printer
