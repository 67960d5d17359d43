// Bytes sent to a printer, written and shown so that a person can read them.
#pragma once

#include <gtest/gtest.h>
#include <string>
#include <string_view>
#include <vector>

namespace q7test
{

/** "1B 61 01 'abc' 0A" as bytes: hexadecimal pairs, and text between single quotes. White space is
 *  free between them. Throws on anything else. */
std::string hex(std::string_view notation);

/** The bytes that lines in the form of golden files stand for:
 *
 *      1B 61 01        ; ESC a
 *      "Descrição\n"
 *
 *  A line is hexadecimal bytes and quoted texts; "; " begins a comment. In texts \n, \", \\ and \xNN
 *  are escapes, and every character is one Latin-1 byte. Throws on a malformed line. */
std::string encoded(const std::vector<std::string>& lines);

/** Whether the bytes are the same. A failure shows the commands around the first difference. */
testing::AssertionResult sameBytes(std::string_view expected, std::string_view received);

/** sameBytes() against tests/data/<name>. A missing or malformed file throws, which fails the test. */
testing::AssertionResult sameAsGolden(const std::string& name, std::string_view received);

} // namespace q7test
