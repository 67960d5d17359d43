#include "command_log.h"

namespace virtual_printer
{
namespace
{

constexpr std::string_view openedTag = "[AbreConexaoImpressora. PARAMETROS:";
constexpr std::string_view sentTag = "[COMANDOSENVIADOS].....[";
/** Both tags stand at a line's beginning; behind them an application's texts may run on. */
constexpr std::size_t longestHead = 1024;
constexpr std::size_t longestPiece = 4096;

int hexValue(char digit)
{
    if (digit >= '0' && digit <= '9') {
        return digit - '0';
    }
    const char upper = static_cast<char>(digit & ~0x20);
    return upper >= 'A' && upper <= 'F' ? upper - 'A' + 10 : -1;
}

bool endsWith(std::string_view text, std::string_view end)
{
    return text.size() >= end.size() && text.substr(text.size() - end.size()) == end;
}

/** The model from "3,VANTA,192.168.0.10,9100]". */
std::string modelOf(std::string_view parameters)
{
    const std::size_t from = parameters.find(',') + 1;
    const std::size_t to = parameters.find(',', from);
    return from == 0 || to == std::string_view::npos
               ? std::string()
               : std::string(parameters.substr(from, to - from));
}

/** Takes a log character by character. */
class LogScanner
{
public:
    explicit LogScanner(const LogEvents& events) : m_events(events) {}

    void take(char c)
    {
        if (c == '\n') {
            endLine();
        } else if (m_place == Place::Head) {
            takeHead(c);
        } else if (m_place == Place::Bytes) {
            takeDigit(c);
        }
    }

    void endLine()
    {
        if (m_place == Place::Bytes) {
            fault();
        }
        const std::size_t opened = m_head.find(openedTag);
        if (opened != std::string::npos) {
            m_events.opened(modelOf(std::string_view(m_head).substr(opened + openedTag.size())));
        }
        m_head.clear();
        m_place = Place::Head;
        ++m_line;
    }

private:
    enum class Place { Head, Bytes, Rest };

    void takeHead(char c)
    {
        if (m_head.size() < longestHead) {
            m_head += c;
            m_place = endsWith(m_head, sentTag) ? Place::Bytes : Place::Head;
        }
    }

    void takeDigit(char c)
    {
        const int value = hexValue(c);
        if (value < 0 && (c != ']' || m_high >= 0)) {
            fault();
        } else if (value < 0) {
            endBytes();
        } else if (m_high < 0) {
            m_high = value;
        } else {
            m_bytes += static_cast<char>(m_high * 16 + value);
            m_high = -1;
            if (m_bytes.size() == longestPiece) {
                tellBytes();
            }
        }
    }

    void fault()
    {
        endBytes();
        m_events.faulty(m_line);
    }

    void endBytes()
    {
        tellBytes();
        m_high = -1;
        m_place = Place::Rest;
    }

    void tellBytes()
    {
        if (!m_bytes.empty()) {
            m_events.sent(m_bytes);
            m_bytes.clear();
        }
    }

    const LogEvents& m_events;
    Place m_place = Place::Head;
    std::string m_head;
    std::string m_bytes;
    int m_high = -1; // the first digit of a pair; -1 between pairs
    std::uint64_t m_line = 1;
};

} // namespace

void readCommandLog(std::istream& log, const LogEvents& events)
{
    LogScanner scanner(events);
    char buffer[65536];
    do {
        log.read(buffer, sizeof buffer);
        for (const char c : std::string_view(buffer, static_cast<std::size_t>(log.gcount()))) {
            scanner.take(c);
        }
    } while (log);
    scanner.endLine();
}

} // namespace virtual_printer
