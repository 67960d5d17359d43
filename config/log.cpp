#include "log.h"

#include "registered_data_folder.h"

#include <QDateTime>
#include <cstdio>

namespace q7
{
namespace
{

constexpr char logFileName[] = "log_q7.txt";

// The dots make the messages line up; programs that read the log rely on them.
const char* tagOf(int kind)
{
    switch (kind) {
    case static_cast<int>(LogKind::SentCommands):
        return "COMANDOSENVIADOS].....[";
    case static_cast<int>(LogKind::Function):
        return "FUNCAO]...............[";
    case static_cast<int>(LogKind::Information):
        return "INFO]................[";
    default:
        return "LOGINDEFINIDO]........[";
    }
}

enum class Known { No, Off, On };

// What the call under way found. As all of the library, for one thread at a time.
Known knownState = Known::No;

} // namespace

bool logIsOn()
{
    return knownState == Known::No ? existsInDataFolder(logFileName) : knownState == Known::On;
}

LogCall::LogCall() : m_isOutermost(knownState == Known::No)
{
    if (m_isOutermost)
        knownState = existsInDataFolder(logFileName) ? Known::On : Known::Off;
}

LogCall::~LogCall()
{
    if (m_isOutermost)
        knownState = Known::No;
}

void writeLog(int kind, const char* message)
{
    if (!logIsOn())
        return;

    const QString time = QDateTime::currentDateTime().toString("dd.MM.yyyy-hh:mm:ss.zzz");
    const QString line = '[' + time + "].....[" + tagOf(kind) + QString::fromUtf8(message) + "]\n";

    // Opened for each line, so that an operator can move the file away while the library is loaded.
    if (!appendInDataFolder(logFileName, line.toUtf8())) {
        std::fputs("Erro ao abrir arquivo!\n", stdout);
        std::fflush(stdout);
    }
}

void writeLog(LogKind kind, const QString& message)
{
    if (logIsOn())
        writeLog(static_cast<int>(kind), message.toUtf8().constData());
}

} // namespace q7
