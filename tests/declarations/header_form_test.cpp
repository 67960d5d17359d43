// A header that leaves its form is refused, with the place and what is wrong.

#include "interface.h"

#include <gtest/gtest.h>

using namespace q7decl;

namespace
{

constexpr char codes[] = R"(/** \file a.h */
#define Q7_VERSION_TEXT "01.01.00"
/** Results. */
enum Q7Result { /** Fine. Causas: none. O que fazer: nothing. */ Q7_OK = 0 };
)";

constexpr char goodComment[] = R"(/** Does it.
 *  \param n a number.
 *  \return 0.
 *  \efeito at once.
 *  \escpos LF.
 *  \exemplo f(1); */)";

/** What castxml says of a function "int f(ARGUMENT n)" behind a comment. */
std::string castxmlOf(const std::string& header, const std::string& comment,
                      const std::string& argumentType)
{
    const auto range = [&](const std::string& text) {
        const std::size_t begin = header.find(text);
        return "begin_offset='" + std::to_string(begin) + "' end_offset='" +
               std::to_string(begin + text.size()) + "'/>";
    };
    return "<CastXML><Enumeration name='Q7Result' line='4' comment='c1'>"
           "<EnumValue name='Q7_OK' init='0'/></Enumeration>"
           "<Function name='f' returns='i' line='6' comment='c2'>"
           "<Argument name='n' type='" +
           argumentType +
           "'/></Function>"
           "<FundamentalType id='i' name='int'/><FundamentalType id='d' name='double'/>"
           "<Comment id='c1' " +
           range("/** Results. */") + "<Comment id='c2' " + range(comment) + "</CastXML>";
}

std::string replaced(std::string text, const std::string& from, const std::string& to)
{
    const std::size_t at = text.find(from);
    return at == std::string::npos ? text : text.replace(at, from.size(), to);
}

const struct {
    const char* from; // in the good header
    const char* to;
    const char* message;
    const char* argumentType = "i";
} faults[] = {
    {"", "", ""},
    {" O que fazer: nothing.", "", "line 4: Q7_OK does not give meaning, causes and remedy"},
    {"/** Fine. Causas: none. O que fazer: nothing. */", "", "line 4: Q7_OK is not documented"},
    {"Q7_VERSION_TEXT", "VERSION", "line 1: Q7_VERSION_TEXT is not defined"},
    {"\\param n a number.", "", "line 6: f has 1 arguments, its comment names 0"},
    {"\\param n", "\\param m", "line 6: f: n is not documented in its place"},
    {"", "", "line 6: f: no language hands over a double []", "d"},
    {"\\param n", "\\param[out] n", "line 6: f: no language hands over a int [out]"},
    {"\\efeito", "\\effect", "line 6: f: what is \\effect?"},
    {"\\escpos LF.", "", "line 6: f lacks \\return, \\efeito or \\escpos"},
    {"\\exemplo f(1);", "", "line 6: f lacks its sentence or its example"},
    {"\\efeito", "\\erros Q7_ERR_NONE\n *  \\efeito", "line 6: f: there is no code Q7_ERR_NONE"},
    {"\\efeito", "\\como g\n *  \\efeito", "line 6: f: there is no function g"},
};

} // namespace

TEST(HeaderForm, IsDemanded)
{
    for (const auto& [from, to, expected, argumentType] : faults) {
        const std::string head = replaced(codes, from, to);
        const std::string comment = replaced(goodComment, from, to);
        const std::string header = head + comment + "\nint f(int n);\n";
        std::string message;
        try {
            readInterface(castxmlOf(header, comment, argumentType), header);
        } catch (const HeaderError& error) {
            message = error.what();
        }
        EXPECT_EQ(expected, message);
    }
}
