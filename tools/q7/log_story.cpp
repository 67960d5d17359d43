#include "log_story.h"

#include "command_list.h"
#include "command_parser.h"
#include "result_codes.h"
#include "text.h"

#include <nlohmann/json.hpp>

namespace q7tool
{
namespace
{

constexpr std::string_view callMark = ". PARAMETROS:";
constexpr std::string_view resultMark = ". RETORNO:";
constexpr std::size_t longestArguments = 300;
constexpr std::size_t offsetWidth = 10;
const std::string indentation(14, ' ');

// "15.11.2026-13:42:40.123"
constexpr std::size_t dayLength = 10;

std::string hoursOf(const std::string& time)
{
    return time.substr(dayLength + 1);
}

std::string shortened(std::string text)
{
    for (char& c : text)
        if (c == '\n' || c == '\r')
            c = ' ';
    if (text.size() <= longestArguments)
        return text;
    const std::size_t size = text.size();
    std::size_t end = longestArguments;
    while (end > 0 && (static_cast<unsigned char>(text[end]) & 0xC0U) == 0x80U)
        --end; // not in the middle of a character
    return text.substr(0, end) + "... (" + std::to_string(size) + " bytes)";
}

int digitValue(char c)
{
    if (c >= '0' && c <= '9')
        return c - '0';
    return c >= 'A' && c <= 'F' ? c - 'A' + 10 : -1;
}

std::string bytesOf(std::string_view hex)
{
    std::string bytes;
    for (std::size_t at = 0; at + 1 < hex.size(); at += 2) {
        const int high = digitValue(hex[at]);
        const int low = digitValue(hex[at + 1]);
        if (high < 0 || low < 0)
            break;
        bytes += static_cast<char>(high * 16 + low);
    }
    return bytes;
}

} // namespace

/** A call's bytes, which come in pieces, as commands. */
class LogStory::Bytes
{
public:
    explicit Bytes(const Teller& tell)
        : m_parser([&tell](const virtual_printer::Command& command) {
              // The offset at the line's beginning counts from the call's first byte.
              const std::string line =
                  virtual_printer::listLine(command, virtual_printer::Language::Portuguese);
              tell({{"tipo", "comando"},
                    {"bytes", hexText(command.bytes)},
                    {"explicacao", line.substr(offsetWidth)}},
                   indentation + line.substr(offsetWidth));
          })
    {
    }
    void feed(std::string_view bytes) { m_parser.feed(bytes); }
    void finish() { m_parser.finish(); }

private:
    virtual_printer::CommandParser m_parser;
};

LogStory::LogStory(Teller teller) : m_tell(std::move(teller)) {}

LogStory::~LogStory() = default;

void LogStory::take(const LogRecord& record)
{
    if (record.kind == LogRecord::Kind::Sent) {
        if (!m_bytes)
            m_bytes = std::make_unique<Bytes>(m_tell);
        m_bytes->feed(bytesOf(record.message));
        if (record.cutOff > 0)
            m_tell({{"tipo", "aviso"}, {"bytes_omitidos", record.cutOff / 2}},
                   indentation + "... e mais " + std::to_string(record.cutOff / 2) + " bytes");
        return;
    }
    explainBytes();
    if (const std::string day = record.time.substr(0, dayLength); day != m_day) {
        m_day = day;
        m_tell({{"tipo", "dia"}, {"dia", day}}, day);
    }
    tellCall(record);
}

void LogStory::end()
{
    explainBytes();
}

void LogStory::explainBytes()
{
    if (m_bytes)
        m_bytes->finish();
    m_bytes.reset();
}

void LogStory::tellCall(const LogRecord& record)
{
    const std::string& message = record.message;
    const std::string time = hoursOf(record.time);
    const std::size_t call = message.find(callMark);
    const std::size_t result = message.find(resultMark);
    if (record.kind == LogRecord::Kind::Call && call != std::string::npos) {
        const std::string name = message.substr(0, call);
        const std::string arguments = shortened(message.substr(call + callMark.size()));
        m_tell({{"tipo", "chamada"},
                {"quando", record.time},
                {"funcao", name},
                {"parametros", arguments}},
               time + "  " + name + '(' + arguments + ')');
        return;
    }
    if (record.kind == LogRecord::Kind::Call && result != std::string::npos) {
        const std::string name = message.substr(0, result);
        const std::string value = message.substr(result + resultMark.size());
        int number = 0;
        const ResultCode* code =
            toNumber(value, number) && number < 0 ? findResultCode(number) : nullptr;
        m_tell({{"tipo", "retorno"}, {"quando", record.time}, {"funcao", name}, {"valor", value}},
               time + "  " + name + " devolveu " + value +
                   (code != nullptr ? ": " + std::string(code->meaning) : std::string()));
        return;
    }
    m_tell({{"tipo", "informacao"}, {"quando", record.time}, {"texto", shortened(message)}},
           time + "  " + shortened(message));
}

} // namespace q7tool
