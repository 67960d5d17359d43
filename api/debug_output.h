// The platform's debug output, which a debugger shows.
#pragma once

#include <QString>

namespace q7
{

/** Goes to the debugger on Windows and nowhere on Linux, where the host's own output would be the
 *  only place for it. */
void writeDebugOutput(const QString& text);

} // namespace q7
