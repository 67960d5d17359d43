// The tests' own tools, where a fault in them would hide faults of the library.

#include "bytes.h"

using namespace q7test;

TEST(TestBytes, LinesReadAsAPersonWouldWriteThem)
{
    EXPECT_EQ(hex("1B 74 10") + "Pre\xE7o \"\\\n;\x01",
              encoded({"; a comment", "1B 74 10   ; ESC t", R"("Preço \"\\\n;" "\x01" ; "x")"}));
    EXPECT_EQ(hex("'It is' 0a 'x'"), "It is\nx");
    EXPECT_THROW(encoded({"\"open"}), std::invalid_argument);
    EXPECT_THROW(hex("'open"), std::invalid_argument);
    EXPECT_THROW(encoded({"1B 4"}), std::invalid_argument);
    EXPECT_THROW(sameAsGolden("there is no such file", ""), std::runtime_error);
}

TEST(TestBytes, AFailureMarksTheFirstDifference)
{
    const testing::AssertionResult result =
        sameBytes(hex("1B 40 1B 61 01") + "abc", hex("1B 40 1B 61 02") + "abc");
    ASSERT_FALSE(result);
    const std::string message = result.message();
    EXPECT_NE(std::string::npos, message.find("from offset 4")) << message;
    EXPECT_NE(std::string::npos, message.find("  >        2  1B 61 01")) << message;
    EXPECT_NE(std::string::npos, message.find("  >        2  1B 61 02")) << message;
}
