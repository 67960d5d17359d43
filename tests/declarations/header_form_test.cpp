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

constexpr char goodFields[] =
    R"(\param n a number. \return 0. \efeito at once. \escpos LF. \exemplo f(1);)";

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

struct Fault {
    const char* name;
    const char* from; // in the good header
    const char* to;
    const char* argumentType;
    const char* message;
};

class HeaderForm : public testing::TestWithParam<Fault>
{
};

std::string replaced(std::string text, const std::string& from, const std::string& to)
{
    const std::size_t at = text.find(from);
    return at == std::string::npos ? text : text.replace(at, from.size(), to);
}

std::string fieldsByLines(std::string text)
{
    for (std::size_t at = text.find(" \\"); at != std::string::npos; at = text.find(" \\", at + 5))
        text.replace(at, 1, "\n *  ");
    return text;
}

} // namespace

TEST_P(HeaderForm, IsDemanded)
{
    const std::string head = replaced(codes, GetParam().from, GetParam().to);
    const std::string comment = fieldsByLines(replaced(std::string("/** Does it. ") + goodFields,
                                                       GetParam().from, GetParam().to)) +
                                " */";
    const std::string header = head + comment + "\nint f(int n);\n";
    std::string message;
    try {
        readInterface(castxmlOf(header, comment, GetParam().argumentType), header);
    } catch (const HeaderError& error) {
        message = error.what();
    }
    EXPECT_EQ(GetParam().message, message);
}

INSTANTIATE_TEST_SUITE_P(
    Faults, HeaderForm,
    testing::Values(
        Fault{"None", "", "", "i", ""},
        Fault{"NoRemedy", " O que fazer: nothing.", "", "i",
              "line 4: Q7_OK does not give meaning, causes and remedy"},
        Fault{"ValueUndocumented", "/** Fine. Causas: none. O que fazer: nothing. */", "", "i",
              "line 4: Q7_OK is not documented"},
        Fault{"NoVersion", "Q7_VERSION_TEXT", "VERSION", "i",
              "line 1: Q7_VERSION_TEXT is not defined"},
        Fault{"ParameterMissing", "\\param n a number. ", "", "i",
              "line 6: f has 1 arguments, its comment names 0"},
        Fault{"ParameterRenamed", "\\param n", "\\param m", "i",
              "line 6: f: n is not documented in its place"},
        Fault{"TypeUnknown", "", "", "d", "line 6: f: no language hands over a double []"},
        Fault{"DirectionUnfit", "\\param n", "\\param[out] n", "i",
              "line 6: f: no language hands over a int [out]"},
        Fault{"FieldUnknown", "\\efeito", "\\effect", "i", "line 6: f: what is \\effect?"},
        Fault{"FieldMissing", "\\escpos LF. ", "", "i",
              "line 6: f lacks \\return, \\efeito or \\escpos"},
        Fault{"NoExample", "\\exemplo f(1);", "", "i",
              "line 6: f lacks its sentence or its example"},
        Fault{"CodeUnknown", "\\efeito", "\\erros Q7_ERR_NONE \\efeito", "i",
              "line 6: f: there is no code Q7_ERR_NONE"},
        Fault{"SourceUnknown", "\\efeito", "\\como g \\efeito", "i",
              "line 6: f: there is no function g"}),
    [](const auto& row) { return row.param.name; });
