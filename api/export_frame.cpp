#include "export_frame.h"

namespace q7
{

SessionCall::SessionCall(PrinterSession& printerSession) : m_session(printerSession)
{
    if (m_session.callDepth == 0) {
        m_brokenPipe.emplace(SignalBlock::BrokenPipe);
        if (m_session.connection)
            m_session.connection->beginCall();
    }
    // Last: what failed before it, for want of memory, has no destructor to take it back.
    ++m_session.callDepth;
}

SessionCall::~SessionCall()
{
    guarded(0, [this] {
        if (--m_session.callDepth == 0 && m_session.connection)
            m_session.connection->endCall();
        return 0;
    });
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
