// The frame that every export runs in: log the call, test the link, run, log the result.
#pragma once

#include "foreign_thread.h"
#include "log.h"
#include "printer_session.h"
#include "q7_impressora.h"
#include "signal_block.h"

#include <QString>
#include <optional>
#include <tuple>

namespace q7
{

/** How an export's body ended. */
struct Outcome {
    int result;
    bool isLogged; // with a RETORNO line
};

/** The result, told in a RETORNO line. */
constexpr Outcome returned(int result)
{
    return {result, true};
}

/** A refusal or a failed send: no RETORNO line. */
constexpr Outcome refused(int code)
{
    return {code, false};
}

/** Keeps a send's result as the session's last. 0 when it wrote something, else the result. */
inline Outcome returnedIfSent(PrinterSession& printerSession, int sendResult)
{
    printerSession.lastResult = sendResult;
    return sendResult < 1 ? refused(sendResult) : returned(Q7_OK);
}

enum class LogText { Utf8, Latin1 };

/** What an export's log lines begin with and how they are encoded. */
struct ExportName {
    const char* text;
    LogText encoding = LogText::Utf8;
    const char* callLabel = ". PARAMETROS:";
    const char* returnLabel = ". RETORNO:";
};

/** One export under way. When the outermost ends, the sends of all leave together. While it runs,
 *  the link is the calling thread's alone. */
class SessionCall
{
public:
    explicit SessionCall(PrinterSession& printerSession);
    ~SessionCall();
    SessionCall(const SessionCall&) = delete;
    SessionCall& operator=(const SessionCall&) = delete;

private:
    PrinterSession& m_session;
    LogCall m_log;
    std::optional<SignalBlock> m_brokenPipe; // of the outermost
};

/** A text argument; a null pointer reads as empty text. */
constexpr const char* textOrEmpty(const char* text)
{
    return text == nullptr ? "" : text;
}

void logExportLine(const ExportName& name, const char* label, const QString& text);

inline QString logForm(int argument)
{
    return QString::number(argument);
}
inline QString logForm(const char* argument)
{
    return QString::fromUtf8(argument);
}
inline QString logForm(const QString& argument)
{
    return argument;
}

/** What an export without arguments logs. */
inline constexpr std::tuple<> noArguments;

/** Logs an export's name and its arguments, joined by ",". */
template <typename... Arguments>
void logCall(const ExportName& name, const std::tuple<Arguments...>& arguments)
{
    if (!logIsOn())
        return;
    QString text;
    std::apply([&text](const auto&... argument) { ((text += logForm(argument) + ','), ...); },
               arguments);
    text.chop(1); // the last comma
    logExportLine(name, name.callLabel, text);
}

void logReturn(const ExportName& name, int result);

/** Runs everything that is called from outside: no exception leaves it, and no trace of the calling
 *  thread stays. */
template <typename Result, typename Body> Result guarded(Result onException, Body&& body) noexcept
{
    const ForeignThread thread;
    try {
        return body();
    } catch (...) {
        return onException;
    }
}

/** The guard of the English and the Prt family. Without an open link it answers Q7_ERR_NOT_OPEN and
 *  does nothing, nor is a line logged; else it runs the operation, whose sends leave together. */
template <typename Operation, typename... Arguments>
int whenOpen(Operation&& operation, Arguments... arguments) noexcept
{
    return guarded(int{Q7_ERR_FAILED}, [&] {
        PrinterSession& printerSession = session();
        const SessionCall call(printerSession);
        return printerSession.isOpen() ? operation(arguments...) : int{Q7_ERR_NOT_OPEN};
    });
}

/** The frame without the step that forgets the last result.
 *  body: takes the session, whose link is open; returns an Outcome. */
template <typename... Arguments, typename Body>
int runSetting(const ExportName& name, const std::tuple<Arguments...>& arguments,
               Body&& body) noexcept
{
    return guarded(int{Q7_ERR_FAILED}, [&] {
        PrinterSession& printerSession = session();
        const SessionCall call(printerSession);
        logCall(name, arguments);
        if (!printerSession.isOpen())
            return int{Q7_ERR_NOT_OPEN};
        const Outcome outcome = body(printerSession);
        if (outcome.isLogged)
            logReturn(name, outcome.result);
        return outcome.result;
    });
}

/** The whole frame of a command export. */
template <typename... Arguments, typename Body>
int runCommand(const ExportName& name, const std::tuple<Arguments...>& arguments,
               Body&& body) noexcept
{
    session().lastResult = Q7_ERR_FAILED;
    return runSetting(name, arguments, std::forward<Body>(body));
}

/** The whole of an export that only sends: body returns the result of its last send. */
template <typename... Arguments, typename Body>
int runSend(const ExportName& name, const std::tuple<Arguments...>& arguments, Body&& body) noexcept
{
    return runCommand(name, arguments, [&](PrinterSession& printerSession) {
        return returnedIfSent(printerSession, body(printerSession));
    });
}

} // namespace q7
