// The platform's side of the log's times.
#pragma once

namespace q7
{

struct LocalTime {
    int year;  // as it is written: 2026
    int month; // 1 to 12
    int day;   // 1 to 31
    int hour, minute, second, millisecond;
};

/** The date and time of the machine's zone, as it is set at the moment. */
LocalTime localTime();

} // namespace q7
