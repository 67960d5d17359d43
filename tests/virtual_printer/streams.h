// Streams of printer bytes: tables of what they give, and hostile ones.
#pragma once

#include "bytes.h"

#include <random>
#include <string>
#include <string_view>
#include <vector>

using Lines = std::vector<std::string>;

/** A row of a table: what a stream gives. */
struct StreamRow {
    const char* name;
    std::string stream;
    Lines gives;
};

/** Random bytes, rich in what begins a command and in pieces of the known stream, cut anywhere. */
inline std::string hostileStream(unsigned seed, std::size_t size, std::string_view known)
{
    std::mt19937 random(seed);
    const std::string leads = q7test::hex(
        "1B 1D 10 1C 0A 28 6B 4C 00 30 31 FF 40 41 57 54 0C 61 24 76 49 7E 47 4A 4D 64 21");
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
