#include "system_name.h"

#include <sys/utsname.h>
#include <system_error>

namespace q7tool
{

std::string systemName()
{
    struct utsname name = {};
    if (::uname(&name) != 0)
        return "Linux";
    return std::string(name.sysname) + ' ' + name.release + ' ' + name.machine;
}

std::string systemMessage(int error)
{
    return std::system_category().message(error);
}

} // namespace q7tool
