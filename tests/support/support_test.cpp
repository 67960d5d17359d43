// The tests' own tools, where a fault in them would hide faults of the library.

#include "bytes.h"

using namespace q7test;

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
