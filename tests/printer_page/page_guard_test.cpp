#include "page_guard.h"

#include <gtest/gtest.h>

#include <ostream>

using namespace printer_page;

namespace
{

struct Row {
    const char* name;
    Asker asker; // its token "*" stands for the right one
    bool mayLook;
    bool maySwitch;
};
void PrintTo(const Row& row, std::ostream* out)
{
    *out << row.name;
}

using Guarding = testing::TestWithParam<Row>;

const char own[] = "127.0.0.1:8080";
const char ownOrigin[] = "http://127.0.0.1:8080";

} // namespace

TEST_P(Guarding, LetsOnlyThePageItselfSwitch)
{
    const PageGuard guard(8080);
    Asker asker = GetParam().asker;
    asker.token = asker.token == "*" ? guard.token() : asker.token;
    EXPECT_EQ(guard.mayLook(asker), GetParam().mayLook);
    EXPECT_EQ(guard.maySwitch(asker), GetParam().maySwitch);
}

INSTANTIATE_TEST_SUITE_P(
    Askers, Guarding,
    testing::Values(
        Row{"ThePage", {own, ownOrigin, "same-origin", "*"}, true, true},
        Row{"ThePageByItsOtherName",
            {"localhost:8080", "http://localhost:8080", "same-origin", "*"},
            true,
            true},
        Row{"APersonWhoTypesTheAddress", {own, "", "none", ""}, true, false},
        Row{"AProgramWithoutAToken", {own, "", "", ""}, true, false},
        Row{"WithoutAnOrigin", {own, "", "", "*"}, true, false},
        Row{"AWrongToken",
            {own, ownOrigin, "same-origin", "0123456789abcdef0123456789abcdef"},
            true,
            false},
        Row{"AnEmptyToken", {own, ownOrigin, "same-origin", ""}, true, false},
        Row{"AnotherSite", {own, "http://example.org", "cross-site", "*"}, false, false},
        Row{"AnotherPortOfThisMachine",
            {own, "http://127.0.0.1:9000", "same-site", "*"},
            false,
            false},
        Row{"AnImageInAnotherSite", {own, "", "cross-site", ""}, false, false},
        Row{"APageWithoutAnOrigin", {own, "null", "", "*"}, false, false},
        Row{"ANameThatWasMadeToLeadHere",
            {"example.org:8080", "http://example.org:8080", "same-origin", "*"},
            false,
            false},
        Row{"AnotherPort", {"127.0.0.1:9100", "http://127.0.0.1:9100", "", "*"}, false, false},
        Row{"NoHost", {"", "", "", "*"}, false, false}),
    [](const auto& row) { return row.param.name; });
