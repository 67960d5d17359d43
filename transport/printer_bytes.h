// Bytes for the printer, wherever they are kept.
#pragma once

#include <QByteArray>
#include <string>
#include <string_view>
#include <type_traits>

namespace q7
{

/** A view of bytes. Made of a literal it holds all of it, zero bytes included, and needs no start-up:
 *  so command strings are constants that outlive all destructors. */
class Bytes : public std::string_view
{
public:
    template <std::size_t size>
    constexpr Bytes(const char (&literal)[size]) : std::string_view(literal, size - 1)
    {
    }
    /** Of a zero-terminated text. */
    template <typename Text, typename = std::enable_if_t<std::is_same_v<Text, const char*>>>
    constexpr Bytes(const Text& text) : std::string_view(text)
    {
    }
    constexpr Bytes(std::string_view bytes) : std::string_view(bytes) {}
    Bytes(const std::string& bytes) : std::string_view(bytes) {}
    Bytes(const QByteArray& bytes)
        : std::string_view(bytes.constData(), static_cast<std::size_t>(bytes.size()))
    {
    }

    bool startsWith(std::string_view head) const { return substr(0, head.size()) == head; }

    /** What a zero-terminated text of these bytes holds. */
    Bytes toFirstZero() const { return substr(0, find('\0')); }
};

inline std::string operator+(Bytes head, Bytes rest)
{
    return std::string(head).append(rest);
}

} // namespace q7
