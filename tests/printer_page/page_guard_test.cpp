#include "page_guard.h"

#include <gtest/gtest.h>

using namespace printer_page;

namespace
{

const char own[] = "127.0.0.1:8080";
const char ownOrigin[] = "http://127.0.0.1:8080";

enum class May { Nothing, Look, LookAndSwitch };

struct Row {
    const char* name;
    Asker asker; // its token "*" stands for the right one
    May may;
};
const Row rows[] = {
    {"the page", {own, ownOrigin, "same-origin", "*"}, May::LookAndSwitch},
    {"by its other name",
     {"localhost:8080", "http://localhost:8080", "same-origin", "*"},
     May::LookAndSwitch},
    {"a person who types the address", {own, "", "none", ""}, May::Look},
    {"a program without a token", {own, "", "", ""}, May::Look},
    {"without an origin", {own, "", "", "*"}, May::Look},
    {"a wrong token", {own, ownOrigin, "same-origin", std::string(32, '0')}, May::Look},
    {"an empty token", {own, ownOrigin, "same-origin", ""}, May::Look},
    {"another site", {own, "http://example.org", "cross-site", "*"}, May::Nothing},
    {"another port of this machine",
     {own, "http://127.0.0.1:9000", "same-site", "*"},
     May::Nothing},
    {"an image in another site", {own, "", "cross-site", ""}, May::Nothing},
    {"a page without an origin", {own, "null", "", "*"}, May::Nothing},
    {"a name that was made to lead here",
     {"example.org:8080", "http://example.org:8080", "same-origin", "*"},
     May::Nothing},
    {"another port", {"127.0.0.1:9100", "http://127.0.0.1:9100", "", "*"}, May::Nothing},
    {"no host", {"", "", "", "*"}, May::Nothing},
};

} // namespace

TEST(PageGuard, LetsOnlyThePageItselfSwitch)
{
    const PageGuard guard(8080);
    for (const Row& row : rows) {
        Asker asker = row.asker;
        asker.token = asker.token == "*" ? guard.token() : asker.token;
        EXPECT_EQ(guard.mayLook(asker), row.may != May::Nothing) << row.name;
        EXPECT_EQ(guard.maySwitch(asker), row.may == May::LookAndSwitch) << row.name;
    }
}
