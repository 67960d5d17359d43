// The frame that every export runs in: take the turn, log the call, test the link, run, log the
// result.
#pragma once

#include "guest.h"
#include "log.h"
#include "printer_session.h"
#include "q7_impressora.h"

#include <QString>
#include <tuple>

namespace q7
{

/** How an export's body ended. */
struct Outcome {
    int result;
    bool isLogged; // with a RETORNO line
};

/** The result, told in a RETORNO line. */
constexpr Outcome logged(int result)
{
    return {result, true};
}

/** The result without a RETORNO line, as refusals and failed sends have none. */
constexpr Outcome unlogged(int result)
{
    return {result, false};
}

/** Keeps a send's result as the session's last. 0 when it wrote something, else the result. */
inline Outcome loggedIfSent(PrinterSession& printer, int sendResult)
{
    printer.lastResult = sendResult;
    return sendResult < 1 ? unlogged(sendResult) : logged(Q7_OK);
}

enum class LogText { Utf8, Latin1 };

/** What an export's log lines begin with and how they are encoded. */
struct ExportName {
    const char* text;
    LogText encoding = LogText::Utf8;
    const char* callLabel = ". PARAMETROS:";
    const char* returnLabel = ". RETORNO:";
};

/** One export under way, perhaps within another: the sends of all leave together with the end of the
 *  outermost. Its thread has the turn. */
class SessionCall
{
public:
    SessionCall();
    ~SessionCall();
    SessionCall(const SessionCall&) = delete;
    SessionCall& operator=(const SessionCall&) = delete;

private:
    const bool m_isOutermost;
    LogCall m_log;
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

/** Runs everything that is called from outside: no exception leaves the outermost export. One that
 *  leaves an export within another ends that other too, so that no half of a receipt passes for a
 *  whole one. body: takes the session. */
template <typename Result, typename Body> Result runExport(Result onException, Body&& body)
{
    const Turn turn; // other threads wait for the end of the outermost
    const auto run = [&body] {
        const SessionCall call;
        return body(session());
    };
    if (session().callDepth > 0)
        return run();
    try {
        return run();
    } catch (...) {
        return onException;
    }
}

/** The guard of the English and the Prt family. Without an open link it answers Q7_ERR_NOT_OPEN and
 *  does nothing, nor is a line logged; else it runs the operation, whose sends leave together. */
template <typename Operation, typename... Arguments>
int whenOpen(Operation&& operation, Arguments... arguments)
{
    return runExport(int{Q7_ERR_FAILED}, [&](PrinterSession& printer) {
        return printer.isOpen() ? operation(arguments...) : int{Q7_ERR_NOT_OPEN};
    });
}

/** The frame without the step that forgets the last result.
 *  body: takes the session, whose link is open; returns an Outcome. */
template <typename... Arguments, typename Body>
int runSetting(const ExportName& name, const std::tuple<Arguments...>& arguments, Body&& body)
{
    return runExport(int{Q7_ERR_FAILED}, [&](PrinterSession& printer) {
        logCall(name, arguments);
        if (!printer.isOpen())
            return int{Q7_ERR_NOT_OPEN};
        const Outcome outcome = body(printer);
        if (outcome.isLogged)
            logReturn(name, outcome.result);
        return outcome.result;
    });
}

/** The whole frame of a command export. */
template <typename... Arguments, typename Body>
int runCommand(const ExportName& name, const std::tuple<Arguments...>& arguments, Body&& body)
{
    return runExport(int{Q7_ERR_FAILED}, [&](PrinterSession& printer) {
        printer.lastResult = Q7_ERR_FAILED;
        return runSetting(name, arguments, body);
    });
}

/** The whole of an export that only sends: body returns the result of its last send. */
template <typename... Arguments, typename Body>
int runSend(const ExportName& name, const std::tuple<Arguments...>& arguments, Body&& body)
{
    return runCommand(name, arguments, [&](PrinterSession& printer) {
        return loggedIfSent(printer, body(printer));
    });
}

} // namespace q7
