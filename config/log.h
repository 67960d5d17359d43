// The log: switched on by the presence of "log_q7.txt" in the data folder.
#pragma once

#include "file_access.h"

#include <QString>

namespace q7
{

enum class LogKind : int {
    SentCommands = 1, // bytes sent to the printer, as upper-case hexadecimal
    Function = 2,     // a call and its result
    Information = 3,
};

/** While one lives, where the log is and whether it is on is known from the outermost's beginning:
 *  the lines of one call ask for it once, not each. Those of two threads must not overlap. */
class LogCall
{
public:
    LogCall() noexcept;
    ~LogCall();
    LogCall(const LogCall&) = delete;
    LogCall& operator=(const LogCall&) = delete;

private:
    friend bool logIsOn();
    friend void writeLog(int kind, const char* message);

    AppendedFile m_file; // of the outermost
};

/** Whether the log is on. Callers that would compose a text for it ask first. */
bool logIsOn();

/** Appends one line to the log; does nothing when the file does not exist, which is never created.
 *  kind: a LogKind, any other value is tagged as undefined. message: UTF-8, to its first zero byte;
 *  bytes that are not UTF-8 are written as U+FFFD. Never fails towards its caller: a file that
 *  cannot be opened is reported on standard output alone. */
void writeLog(int kind, const char* message);
void writeLog(LogKind kind, const QString& message);

} // namespace q7
