#include "printer_object.h"

#include "everlasting.h"
#include "export_frame.h"
#include "port_text.h"

namespace q7
{
namespace
{

// Never destroyed, like the session on which it works.
Everlasting<PrinterObject> theObject;

} // namespace

PrinterObject& printerObject()
{
    return *theObject;
}

int PrinterObject::create(const char* modelName)
{
    return runExport(int{Q7_ERR_FAILED}, [&](PrinterSession& /*printer*/) {
        m_modelName = textOrEmpty(modelName);
        return int{Q7_OK};
    });
}

int PrinterObject::open(const char* portText)
{
    return runExport(int{Q7_ERR_FAILED}, [&](PrinterSession& /*printer*/) {
        const auto port = parsePortText(QString::fromUtf8(textOrEmpty(portText)));
        if (!port)
            return int{Q7_ERR_KIND};
        return AbreConexaoImpressora(port->kind, m_modelName.c_str(),
                                     port->address.toUtf8().constData(), port->number);
    });
}

int PrinterObject::askStatus(int kind)
{
    m_lastStatus = StatusImpressora(kind);
    return m_lastStatus;
}

} // namespace q7
