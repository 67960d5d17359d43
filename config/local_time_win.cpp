#include "local_time.h"

#include <windows.h>

namespace q7
{

LocalTime localTime()
{
    SYSTEMTIME local = {};
    ::GetLocalTime(&local);
    return {local.wYear,   local.wMonth,  local.wDay,         local.wHour,
            local.wMinute, local.wSecond, local.wMilliseconds};
}

} // namespace q7
