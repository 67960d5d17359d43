#include "export_frame.h"

namespace q7
{

SessionCall::SessionCall() : m_isOutermost(session().callDepth == 0)
{
    if (m_isOutermost && session().connection)
        session().connection->beginCall();
    // Last: what failed before it, for want of memory, has no destructor to take it back.
    ++session().callDepth;
}

SessionCall::~SessionCall()
{
    --session().callDepth;
    if (!m_isOutermost || !session().connection)
        return;
    try {
        session().connection->endCall();
    } catch (...) {
        // No memory: the next call hands over what was left.
    }
}

void logExportLine(const ExportName& name, const char* label, const QString& text)
{
    const QString line = QString::fromUtf8(name.text) + label + text;
    const QByteArray bytes = name.encoding == LogText::Latin1 ? line.toLatin1() : line.toUtf8();
    writeLog(static_cast<int>(LogKind::Function), bytes.constData());
}

void logReturn(const ExportName& name, int result)
{
    if (logIsOn())
        logExportLine(name, name.returnLabel, QString::number(result));
}

} // namespace q7
