// The tests' own tools, where a fault in them would hide faults of the library.

#include "bytes.h"
#include "fake_printer.h"

using namespace q7test;

TEST(TestBytes, LinesReadBackAsTheSameBytes)
{
    std::string all =
        hex("1B 40  1B 61 01  1D 6B 49 03 7B 43 0C  1D 28 6B 08 00 31 50 30 41 42 43 44 45"
            "1D 6B 0B 48 41 2C 61 62 63 64 00  1D 6B 51 00 06 0E 01 07 00 61 62 63 64"
            "1B 70 31 32");
    for (int byte = 0; byte < 256; ++byte)
        all += static_cast<char>(byte);
    EXPECT_EQ(all, encoded(decoded(all)));
    for (std::size_t cut = 0; cut < all.size(); ++cut)
        EXPECT_EQ(all.substr(0, cut), encoded(decoded(all.substr(0, cut)))) << cut;
}

TEST(TestBytes, LinesReadAsAPersonWouldWriteThem)
{
    EXPECT_EQ(hex("1B 74 10") + "Pre\xE7o \"\\\n",
              encoded({"; a comment", "1B 74 10   ; ESC t", R"("Preço \"\\\n")"}));
    EXPECT_THROW(encoded({"\"open"}), std::invalid_argument);
    EXPECT_THROW(encoded({"1B 4"}), std::invalid_argument);
    EXPECT_THROW(golden("there is no such file"), std::runtime_error);
}

TEST(TestBytes, AFailureMarksTheFirstDifference)
{
    const testing::AssertionResult result =
        sameBytes(hex("1B 40 1B 61 01") + "abc", hex("1B 40 1B 61 02") + "abc");
    ASSERT_FALSE(result);
    const std::string message = result.message();
    EXPECT_NE(std::string::npos, message.find("from offset 4")) << message;
    EXPECT_NE(std::string::npos, message.find("  > 1B 61 01")) << message;
    EXPECT_NE(std::string::npos, message.find("  > 1B 61 02")) << message;
}
