// Printer bytes written readably.
#pragma once

#include <ostream>
#include <random>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

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

using Lines = std::vector<std::string>;

/** A row of a table: what a stream gives. */
struct StreamRow {
    const char* name;
    std::string stream;
    Lines gives;
};
inline void PrintTo(const StreamRow& row, std::ostream* out)
{
    *out << row.name;
}

/** Random bytes, rich in what begins a command and in pieces of the known stream, cut anywhere. */
inline std::string hostileStream(unsigned seed, std::size_t size, std::string_view known)
{
    std::mt19937 random(seed);
    const std::string leads =
        bytes("1B 1D 10 1C 0A 28 6B 4C 00 30 31 FF 40 41 57 54 0C 61 24 76 49 7E");
    std::string stream;
    while (stream.size() < size) {
        const auto value = static_cast<unsigned>(random());
        if (value % 4 == 0) {
            stream += static_cast<char>(value >> 8U);
        } else if (value % 4 == 1 && !known.empty()) {
            stream += known.substr((value >> 8U) % known.size(), (value >> 24U) % 32);
        } else {
            stream += leads[(value >> 8U) % leads.size()];
        }
    }
    return stream;
}
