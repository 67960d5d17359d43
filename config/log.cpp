#include "log.h"

#include "data_folder.h"
#include "log_system.h"

#include <algorithm>
#include <atomic>
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

AppendedFile findLog()
{
    return AppendedFile(pathInDataFolder(logFileName));
}

// The call under way. Exports of several threads take turns.
std::atomic<const LogCall*> callUnderWay{nullptr};

// By hand: a receipt is a thousand lines of the log.
void put(char*& position, int number, int digits, char behind)
{
    for (int digit = digits; digit > 0; number /= 10)
        position[--digit] = static_cast<char>('0' + number % 10);
    position[digits] = behind;
    position += digits + 1;
}

QByteArray makeLine(int kind, const char* message)
{
    const LocalTime now = localTime();
    char time[] = "[dd.MM.yyyy-hh:mm:ss.zzz]";
    char* position = time + 1;
    put(position, now.fields.tm_mday, 2, '.');
    put(position, now.fields.tm_mon + 1, 2, '.');
    put(position, now.fields.tm_year + 1900, 4, '-');
    put(position, now.fields.tm_hour, 2, ':');
    put(position, now.fields.tm_min, 2, ':');
    put(position, now.fields.tm_sec, 2, '.');
    put(position, now.milliseconds, 3, ']');

    const std::size_t length = std::strlen(message);
    QByteArray line;
    line.reserve(static_cast<int>(length) + 64);
    line.append(time, sizeof time - 1).append(tagOf(kind));
    const auto isAscii = [](char c) { return static_cast<signed char>(c) >= 0; };
    if (std::all_of(message, message + length, isAscii))
        line.append(message, static_cast<int>(length));
    else
        line += QString::fromUtf8(message).toUtf8();
    return line += "]\n";
}

} // namespace

LogCall::LogCall() noexcept
{
    if (callUnderWay != nullptr)
        return;
    try {
        m_file = findLog();
    } catch (...) {
        // No memory: the call is not logged.
    }
    callUnderWay = this;
}

LogCall::~LogCall()
{
    if (callUnderWay == this)
        callUnderWay = nullptr;
}

bool logIsOn()
{
    const LogCall* call = callUnderWay;
    return call == nullptr ? findLog().exists() : call->m_file.exists();
}

void writeLog(int kind, const char* message)
{
    const LogCall* call = callUnderWay;
    const AppendedFile found = call == nullptr ? findLog() : AppendedFile();
    const AppendedFile& file = call == nullptr ? found : call->m_file;
    if (!file.exists())
        return;

    if (!file.append(makeLine(kind, message)))
        print("Erro ao abrir arquivo!\n");
}

void writeLog(LogKind kind, const QString& message)
{
    if (logIsOn())
        writeLog(static_cast<int>(kind), message.toUtf8().constData());
}

} // namespace q7
