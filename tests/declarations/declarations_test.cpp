// What is checked in for other languages declares what is exported.
#include "test_files.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <regex>

namespace
{

using Names = std::vector<std::string>;

Names namesIn(const std::string& text, const std::string& pattern)
{
    const std::regex regex(pattern, std::regex::ECMAScript | std::regex::multiline);
    Names names(std::sregex_token_iterator(text.begin(), text.end(), regex, 1), {});
    std::sort(names.begin(), names.end());
    return names;
}

struct Language {
    std::string file;
    const char* declared; // what the library is asked for
    const char* offered;  // what applications call
};

const Language languages[] = {
    {"delphi/Q7Impressora.pas", "external Biblioteca name '(\\w+)'",
     "(?:function|procedure) (\\w+).*\r\nbegin"},
    {"csharp/Q7Impressora.cs", "internal static extern \\w+ (\\w+)\\(",
     "public static \\w+ (\\w+)\\("},
    {"vb6/Q7Impressora.bas", "Declare \\w+ (?:dll)?(\\w+) Lib \"Q7_Impressora.dll\"",
     "^Public (?:Declare )?(?:Function|Sub) (\\w+)"},
    {"java/q7/Q7Impressora.java", "^        (?:int|void|Pointer) (\\w+)\\(",
     "public static \\w+ (\\w+)\\("},
    {"python/q7_impressora.py", "^    \\(\"(\\w+)\", ", "^def ([A-Za-z]\\w*)"},
    {"php/Q7Impressora.php", "^        \\['\\w+\\*?', '(\\w+)\\(", "public static function (\\w+)"},
};

} // namespace

TEST(Declarations, NameEveryExportOnce)
{
    const Names exports = namesIn(q7test::fileContent(Q7_EXPORT_LIST), "^([A-Za-z]\\w*)$");
    for (const auto& [file, declared, offered] : languages) {
        const std::string text = q7test::fileContent(Q7_CHECKED_IN "/" + file);
        EXPECT_EQ(exports, namesIn(text, declared)) << file;
        // The message of a code is the one function that the library does not have.
        Names own = namesIn(text, offered);
        for (const char* message : {"Mensagem", "mensagem"})
            own.erase(std::remove(own.begin(), own.end(), message), own.end());
        EXPECT_EQ(exports, own) << file;
    }
}
