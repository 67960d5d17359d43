// Takes the place of serial_link.cpp where Qt's serial ports were not to be had for the build.
#include "serial_link.h"

#include "log.h"
#include "q7_impressora.h"

namespace q7
{

SerialOpened openSerialLink(const QString& /*address*/, int /*bitsPerSecond*/)
{
    writeLog(LogKind::Information, "SUPORTE A PORTA SERIAL NAO INCLUIDO NESTA BIBLIOTECA");
    return {nullptr, Q7_ERR_FAILED};
}

} // namespace q7
