#include "system_name.h"

#include <sys/utsname.h>

namespace q7tool
{

std::string systemName()
{
    struct utsname name = {};
    if (::uname(&name) != 0)
        return "Linux";
    return std::string(name.sysname) + ' ' + name.release + ' ' + name.machine;
}

} // namespace q7tool
