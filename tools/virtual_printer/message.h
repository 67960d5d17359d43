// What the printer says to people, in the language of who reads it.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace virtual_printer
{

enum class Language : std::uint8_t { English, Portuguese };

/** A text of this program in both languages; %1 to %9 stand for arguments. */
struct Phrase {
    std::string_view english;
    std::string_view portuguese;

    std::string_view in(Language language) const
    {
        return language == Language::Portuguese ? portuguese : english;
    }
};

/** A phrase with its arguments, or a text that is the same in every language. UTF-8. */
class Message
{
public:
    Message() = default;
    Message(const Phrase& phrase, std::vector<Message> arguments = {})
        : m_phrase(phrase), m_arguments(std::move(arguments))
    {
    }
    Message(std::string verbatim) : m_verbatim(std::move(verbatim)) {}

    bool empty() const { return m_phrase.english.empty() && m_verbatim.empty(); }
    std::string in(Language language) const;

private:
    Phrase m_phrase = {};
    std::vector<Message> m_arguments;
    std::string m_verbatim;
};

} // namespace virtual_printer
