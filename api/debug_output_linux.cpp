#include "debug_output.h"

namespace q7
{

void writeDebugOutput(const QString& /*text*/) {}

} // namespace q7
