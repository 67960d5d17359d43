#include "log.h"

#include "data_folder.h"
#include "local_time.h"

#include <algorithm>
#include <atomic>
#include <cstdio>
#include <cstring>

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
        return ".....[COMANDOSENVIADOS].....[";
    case static_cast<int>(LogKind::Function):
        return ".....[FUNCAO]...............[";
    case static_cast<int>(LogKind::Information):
        return ".....[INFO]................[";
    default:
        return ".....[LOGINDEFINIDO]........[";
    }
}

/** The path of the log while it is on, else empty. */
NativePath findLog()
{
    NativePath path = pathInDataFolder(logFileName);
    if (!fileExists(path))
        path.clear();
    return path;
}

// The call under way. Exports of several threads take turns.
std::atomic<const LogCall*> callUnderWay{nullptr};

void appendNumber(QByteArray& line, int number, int digits, char behind)
{
    for (int divisor = digits == 4 ? 1000 : digits == 3 ? 100 : 10; divisor > 0; divisor /= 10)
        line += static_cast<char>('0' + number / divisor % 10);
    line += behind;
}

QByteArray makeLine(int kind, const char* message)
{
    const char* tag = tagOf(kind);
    const std::size_t length = std::strlen(message);
    QByteArray line;
    line.reserve(static_cast<int>(length) + 64);
    const LocalTime now = localTime();
    line += '[';
    appendNumber(line, now.day, 2, '.');
    appendNumber(line, now.month, 2, '.');
    appendNumber(line, now.year, 4, '-');
    appendNumber(line, now.hour, 2, ':');
    appendNumber(line, now.minute, 2, ':');
    appendNumber(line, now.second, 2, '.');
    appendNumber(line, now.millisecond, 3, ']');
    line += tag;
    const auto isAscii = [](char c) { return static_cast<signed char>(c) >= 0; };
    if (std::all_of(message, message + length, isAscii))
        line.append(message, static_cast<int>(length));
    else
        line += QString::fromUtf8(message).toUtf8();
    return line += "]\n";
}

} // namespace

LogCall::LogCall()
{
    if (callUnderWay == nullptr) {
        m_logPath = findLog();
        callUnderWay = this;
    }
}

LogCall::~LogCall()
{
    if (callUnderWay == this)
        callUnderWay = nullptr;
}

bool logIsOn()
{
    const LogCall* call = callUnderWay;
    return call == nullptr ? !findLog().empty() : !call->m_logPath.empty();
}

void writeLog(int kind, const char* message)
{
    const LogCall* call = callUnderWay;
    const NativePath found = call == nullptr ? findLog() : NativePath();
    const NativePath& path = call == nullptr ? found : call->m_logPath;
    if (path.empty())
        return;

    // Opened for each line, so that an operator can move the file away while the library is loaded.
    if (!appendToFile(path, makeLine(kind, message))) {
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
