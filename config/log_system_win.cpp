#include "log_system.h"

#include <windows.h>

#include <cstdio>

namespace q7
{

LocalTime localTime()
{
    SYSTEMTIME now = {};
    ::GetLocalTime(&now);
    LocalTime local = {};
    local.fields.tm_year = now.wYear - 1900;
    local.fields.tm_mon = now.wMonth - 1;
    local.fields.tm_mday = now.wDay;
    local.fields.tm_hour = now.wHour;
    local.fields.tm_min = now.wMinute;
    local.fields.tm_sec = now.wSecond;
    local.milliseconds = now.wMilliseconds;
    return local;
}

void print(const char* text)
{
    std::fputs(text, stdout);
    std::fflush(stdout);
}

} // namespace q7
