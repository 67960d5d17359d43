// The functions that the library exports: listed, declared and built are the same.

#include "program.h"
#include "test_files.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <regex>

using namespace q7test;

namespace
{

using Names = std::vector<std::string>;

Names namesIn(const std::string& text, const char* pattern)
{
    const std::regex regex(pattern, std::regex::ECMAScript | std::regex::multiline);
    Names names(std::sregex_token_iterator(text.begin(), text.end(), regex, 1), {});
    std::sort(names.begin(), names.end());
    return names;
}

/** What one of the two has and the other has not. */
Names difference(const Names& left, const Names& right)
{
    Names names;
    std::set_symmetric_difference(left.begin(), left.end(), right.begin(), right.end(),
                                  std::back_inserter(names));
    return names;
}

} // namespace

TEST(Exports, ListHeaderAndLibraryAgree)
{
    const Names listed = namesIn(fileContent(Q7_EXPORT_LIST), "^([A-Za-z]\\w*)$");
    const ProgramResult nm = runProgram({Q7_NM, "-D", "--defined-only", Q7_LIBRARY});
    ASSERT_EQ(0, nm.exitCode) << nm.output;
    EXPECT_EQ(86U, listed.size());
    EXPECT_EQ(Names(),
              difference(listed, namesIn(fileContent(Q7_PUBLIC_HEADER), "Q7_CALL (\\w+)\\(")));
    EXPECT_EQ(Names(), difference(listed, namesIn(nm.output, "^\\S+ \\w (\\S+)$")));
}
