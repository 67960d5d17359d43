// A look at a printer's link past the library, to tell why the library could not open it.
#pragma once

#include "printer_address.h"

#include <chrono>
#include <string>

namespace q7tool
{

struct ProbeResult {
    enum class Outcome {
        HostUnknown,
        Refused,     // the machine is there, nobody listens
        Unreachable, // no way to the machine
        TimedOut,    // nobody answered the connection
        Missing,     // no such serial port
        Busy,        // the serial port is in use, or not permitted
        Silent,      // connected, but no answer
        Answered,
        Failed,
    };
    Outcome outcome = Outcome::Failed;
    std::string detail;                      // the system's words, when Failed
    std::string reply;                       // what the printer says of itself, trimmed
    std::chrono::milliseconds replyAfter{0}; // since it was asked
};

/** How long the library waits for a printer's name. */
constexpr std::chrono::milliseconds libraryPatience(750);

/** Connects (3 s at most) and asks for the printer's name, as the library does, but waits longer for
 *  it: 6 s. Network and serial port alone.
 *  answerIsDue: the library has asked just now and had no answer; over a serial port that answer may
 *  still come, and would be taken for a quick one to the second question. */
ProbeResult probePrinter(const PrinterAddress& address, bool answerIsDue);

} // namespace q7tool
