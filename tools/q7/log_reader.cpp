#include "log_reader.h"

#include <array>
#include <optional>
#include <string_view>

namespace q7tool
{
namespace
{

// "[dd.MM.yyyy-hh:mm:ss.zzz].....[", then the kind's tag.
constexpr std::string_view timeShape = "[00.00.0000-00:00:00.000].....[";
constexpr std::size_t timeLength = 23;

struct Tag {
    std::string_view text;
    LogRecord::Kind kind;
};
constexpr std::array<Tag, 4> tags = {{
    {"COMANDOSENVIADOS].....[", LogRecord::Kind::Sent},
    {"FUNCAO]...............[", LogRecord::Kind::Call},
    {"INFO]................[", LogRecord::Kind::Information},
    {"LOGINDEFINIDO]........[", LogRecord::Kind::Other},
}};

bool hasTime(std::string_view line)
{
    if (line.size() < timeShape.size())
        return false;
    for (std::size_t i = 0; i < timeShape.size(); ++i) {
        const bool isDigit = line[i] >= '0' && line[i] <= '9';
        if (timeShape[i] == '0' ? !isDigit : line[i] != timeShape[i])
            return false;
    }
    return true;
}

/** The record that a line begins, its message up to the line's end; none when it begins none. */
std::optional<LogRecord> beginningOf(std::string_view line)
{
    if (!hasTime(line))
        return std::nullopt;
    const std::string_view rest = line.substr(timeShape.size());
    for (const Tag& tag : tags)
        if (rest.substr(0, tag.text.size()) == tag.text)
            return LogRecord{std::string(line.substr(1, timeLength)), tag.kind,
                             std::string(rest.substr(tag.text.size())), 0};
    return std::nullopt;
}

class Gatherer
{
public:
    explicit Gatherer(const std::function<void(const LogRecord&)>& take) : m_take(take) {}

    /** A line, or the further part of one that is too long to be handed over at once. */
    void line(std::string_view text, bool isFurtherPart)
    {
        if (!isFurtherPart) {
            if (std::optional<LogRecord> next = beginningOf(text)) {
                end();
                m_record = std::move(*next);
                m_hasRecord = true;
                return;
            }
            append("\n");
        }
        append(text);
    }

    void end()
    {
        if (!m_hasRecord)
            return;
        std::string& message = m_record.message;
        if (m_record.cutOff == 0 && !message.empty() && message.back() == ']')
            message.pop_back();
        m_take(m_record);
        m_hasRecord = false;
    }

private:
    void append(std::string_view text)
    {
        if (!m_hasRecord)
            return;
        const std::size_t room = longestLogMessage - m_record.message.size();
        m_record.message.append(text.substr(0, room));
        m_record.cutOff += text.size() - std::min(room, text.size());
    }

    const std::function<void(const LogRecord&)>& m_take;
    LogRecord m_record;
    bool m_hasRecord = false;
};

} // namespace

void readLog(std::istream& log, const std::function<void(const LogRecord&)>& take)
{
    constexpr std::size_t longestPart = 65536;
    Gatherer gatherer(take);
    std::string buffer(longestPart, '\0');
    std::size_t kept = 0; // bytes of a line whose end has not been read yet
    bool isFurtherPart = false;
    for (bool more = true; more;) {
        log.read(buffer.data() + kept, static_cast<std::streamsize>(buffer.size() - kept));
        const std::size_t filled = kept + static_cast<std::size_t>(log.gcount());
        more = static_cast<bool>(log);
        const std::string_view text(buffer.data(), filled);
        std::size_t at = 0;
        for (std::size_t end = 0; (end = text.find('\n', at)) != std::string_view::npos;
             at = end + 1) {
            std::string_view line = text.substr(at, end - at);
            if (!line.empty() && line.back() == '\r')
                line.remove_suffix(1); // an editor has been at it
            gatherer.line(line, isFurtherPart);
            isFurtherPart = false;
        }
        // A part that fills the buffer is handed over without its line's end.
        if (at == 0 && filled == buffer.size()) {
            gatherer.line(text, isFurtherPart);
            isFurtherPart = true;
            at = filled;
        }
        kept = filled - at;
        buffer.replace(0, kept, buffer, at, kept);
    }
    if (kept > 0)
        gatherer.line(std::string_view(buffer.data(), kept), isFurtherPart);
    gatherer.end();
}

} // namespace q7tool
