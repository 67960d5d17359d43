#include "message.h"

namespace virtual_printer
{

std::string Message::in(Language language) const
{
    std::string text = m_verbatim;
    const std::string_view phrase = m_phrase.in(language);
    for (std::size_t at = 0; at < phrase.size(); ++at) {
        if (phrase[at] == '%' && at + 1 < phrase.size()) {
            const auto argument = static_cast<std::size_t>(phrase[++at] - '1');
            text += argument < m_arguments.size() ? m_arguments[argument].in(language) : "";
        } else {
            text += phrase[at];
        }
    }
    return text;
}

} // namespace virtual_printer
