#include "languages.h"

#include "source_text.h"

namespace q7decl
{

std::string cppCodes(const Interface& interface)
{
    std::string text =
        std::string("// ") + generatedNote +
        "\n// Q7_CODE(nome, valor, significado, causas, o que fazer), em UTF-8 e sem "
        "ponto no fim.\n// clang-format off\n";
    for (const ResultCode& code : interface.codes)
        text += "Q7_CODE(" + code.name + ", " + std::to_string(code.value) + ",\n        " +
                doubleQuoted(code.meaning) + ",\n        " + doubleQuoted(code.causes) +
                ",\n        " + doubleQuoted(code.remedy) + ")\n";
    return text + "// clang-format on\n";
}

} // namespace q7decl
