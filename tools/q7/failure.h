// What went wrong, as every command tells it: what happened, the code, what to do.
#pragma once

#include <optional>
#include <string>

namespace q7tool
{

/** How the program ends. */
enum class Exit : int {
    Done = 0,
    Refused = 1,     // by the library
    Usage = 2,       // of this program
    NoLink = 3,      // no connection to the printer
    CannotPrint = 4, // paper or cover
    Document = 5,    // the document is at fault
};

/** Thrown by whatever cannot go on; told in one place. The texts are whole sentences. */
struct Failure {
    Exit exit;
    std::string happened;
    std::string todo;
    std::optional<int> code;   // what the library returned, where it was the library
    std::string codeName = {}; // of one that is none of Q7Result
};

} // namespace q7tool
