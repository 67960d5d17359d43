// What the log asks of the operating system besides its file.
#pragma once

#include <ctime>

namespace q7
{

struct LocalTime {
    std::tm fields; // to the second
    int milliseconds;
};

/** The date and time of the machine's zone, as it is set at the moment. */
LocalTime localTime();

/** Writes a text to the process's standard output, unless that is closed or nobody reads it. */
void print(const char* text);

} // namespace q7
