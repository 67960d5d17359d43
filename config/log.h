// The log: switched on by the presence of "log_q7.txt" in the data folder.
#pragma once

#include <QString>

namespace q7
{

enum class LogKind : int {
    SentCommands = 1, // bytes sent to the printer, as upper-case hexadecimal
    Function = 2,     // a call and its result
    Information = 3,
};

/** Whether the log is on. Callers that would compose a text for it ask first. */
bool logIsOn();

/** While one lives, whether the log is on is known from its beginning: the lines of one call ask
 *  the file system once, not each. */
class LogCall
{
public:
    LogCall();
    ~LogCall();
    LogCall(const LogCall&) = delete;
    LogCall& operator=(const LogCall&) = delete;

private:
    bool m_isOutermost;
};

/** Appends one line to the log; does nothing when the file does not exist, which is never created.
 *  kind: a LogKind, any other value is tagged as undefined. message: UTF-8, to its first zero byte;
 *  bytes that are not UTF-8 are written as U+FFFD. Never fails towards its caller: a file that
 *  cannot be opened is reported on standard output alone. */
void writeLog(int kind, const char* message);
void writeLog(LogKind kind, const QString& message);

} // namespace q7
