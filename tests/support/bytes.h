// Bytes sent to a printer, written and shown so that a person can read them.
#pragma once

#include <gtest/gtest.h>
#include <string>
#include <string_view>
#include <vector>

namespace q7test
{

/** "1B 61 01  1B 74 10" as bytes; white space is free. Throws on anything else. */
std::string hex(std::string_view digits);

/** The bytes as one line per command or run of text, in the form that golden files have:
 *
 *      1B 61 01        ; ESC a
 *      "Descri\xE7\xE3o\n"  (shown with its accents, in UTF-8)
 *
 *  A line is hexadecimal bytes and quoted texts; "; " begins a comment. In texts \n, \r, \", \\ and
 *  \xNN are escapes, and every character is one Latin-1 byte. */
std::vector<std::string> decoded(std::string_view bytes);

/** The bytes that such lines stand for; the inverse of decoded(). Throws on a malformed line. */
std::string encoded(const std::vector<std::string>& lines);

/** The bytes of tests/data/<name>. A missing or malformed file throws, which fails the test.
 *  Environment variable Q7_WRITE_GOLDEN: the folder into which sameAsGolden puts what it got, for
 *  review; never the golden file itself. */
std::string golden(const std::string& name);

/** Whether the bytes are the same. A failure shows both sides decoded, first difference marked. */
testing::AssertionResult sameBytes(std::string_view expected, std::string_view received);

/** sameBytes() against a golden file. */
testing::AssertionResult sameAsGolden(const std::string& name, std::string_view received);

} // namespace q7test
