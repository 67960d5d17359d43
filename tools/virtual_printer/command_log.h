// The bytes in a library log, so that a customer's log can be turned into a picture.
#pragma once

#include <functional>
#include <istream>
#include <string>
#include <string_view>

namespace virtual_printer
{

/** What a log holds, told in its order. */
struct LogEvents {
    /** The application opens a connection; the model as it named it. */
    std::function<void(const std::string& model)> opened;
    /** Bytes were sent. A line's bytes may come in several pieces. */
    std::function<void(std::string_view bytes)> sent;
    /** The line with this number, from 1, is tagged COMANDOSENVIADOS and does not hold pairs of
     *  hexadecimal digits to its end; the pairs before the fault were told as sent. */
    std::function<void(std::uint64_t line)> faulty;
};

/** Reads the lines tagged COMANDOSENVIADOS. Lines of any other kind, and what surrounds the tag, do
 *  not matter, so an excerpt will do. However long the log and its lines, little is kept. */
void readCommandLog(std::istream& log, const LogEvents& events);

} // namespace virtual_printer
