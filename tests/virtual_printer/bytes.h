// Printer bytes written readably.
#pragma once

#include <stdexcept>
#include <string>
#include <string_view>

/** "1B 40 'abc' 0A": hexadecimal pairs, and text between single quotes. */
inline std::string bytes(std::string_view notation)
{
    std::string made;
    for (std::size_t at = 0; at < notation.size();) {
        if (notation[at] == ' ') {
            ++at;
        } else if (notation[at] == '\'') {
            const std::size_t end = notation.find('\'', at + 1);
            made.append(notation.substr(at + 1, end - at - 1));
            at = end + 1;
        } else {
            made += static_cast<char>(std::stoi(std::string(notation.substr(at, 2)), nullptr, 16));
            at += 2;
        }
    }
    return made;
}
