// Bytes sent to a printer, written and shown so that a person can read them.
#pragma once

#include <gtest/gtest.h>
#include <string>
#include <string_view>
#include <vector>

namespace q7test
{

/** "1B 61 01 'abc' 0A" as bytes: hexadecimal pairs, and texts between single or double quotes, in which
 *  \n, \\, \xNN and a quote behind a backslash are escapes. White space is free between them, ";"
 *  begins a comment. Throws on anything else. */
std::string hex(std::string_view notation);

/** The bytes that the lines of a golden file stand for, each as above:
 *
 *      1B 61 01        ; ESC a
 *      "Descrição\n"
 *
 *  They are UTF-8, and every character is one Latin-1 byte; throws on any other. */
std::string encoded(const std::vector<std::string>& lines);

/** Whether the bytes are the same. A failure shows the commands around the first difference. */
testing::AssertionResult sameBytes(std::string_view expected, std::string_view received);

/** sameBytes() against tests/data/<name>. A missing or malformed file throws, which fails the test. */
testing::AssertionResult sameAsGolden(const std::string& name, std::string_view received);

} // namespace q7test
