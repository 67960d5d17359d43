// A log as a person reads it: each call, what it returned, and the bytes of it explained.
#pragma once

#include "answer.h"
#include "log_reader.h"

#include <memory>

namespace q7tool
{

class LogStory
{
public:
    /** A line, as JSON and as text. */
    using Teller = std::function<void(const Json& object, const std::string& text)>;

    explicit LogStory(Teller teller);
    ~LogStory();

    void take(const LogRecord& record);
    /** The log has ended. */
    void end();

private:
    class Bytes;

    void tellCall(const LogRecord& record);
    void explainBytes();

    Teller m_tell;
    std::string m_day;              // told last
    std::unique_ptr<Bytes> m_bytes; // of the call under way
};

} // namespace q7tool
