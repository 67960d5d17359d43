// The library's log, read line by line of the log, however long it is.
#pragma once

#include <cstdint>
#include <functional>
#include <istream>
#include <string>

namespace q7tool
{

/** One line of the log; a message may hold line feeds of its own. */
struct LogRecord {
    enum class Kind { Sent, Call, Information, Other };

    std::string time; // "15.11.2026-13:42:40.123"
    Kind kind = Kind::Other;
    std::string message;
    std::uint64_t cutOff = 0; // so many bytes of the message were too many to keep
};

/** Of a message no more than this is kept. */
constexpr std::size_t longestLogMessage = 1048576;

/** Calls with each record in turn. What does not look like the log's first line is skipped. Little
 *  is kept, whatever the log's length. */
void readLog(std::istream& log, const std::function<void(const LogRecord&)>& take);

} // namespace q7tool
