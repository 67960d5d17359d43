#include "languages.h"

#include "source_text.h"

#include <algorithm>
#include <array>
#include <string_view>

namespace q7decl
{
namespace
{

/** Whether functions give these values to their callers; those of the others are arguments. */
bool isReturned(const Enumeration& enumeration)
{
    constexpr std::array<std::string_view, 4> names = {"Q7NetError", "Q7State", "Q7StateBit",
                                                       "Q7PrinterState"};
    return std::find(names.begin(), names.end(), enumeration.name) != names.end();
}

} // namespace

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
    text += "// Q7_ANSWER(enumeração, quando, nome, valor, significado): o que não é um código.\n";
    for (const Enumeration& enumeration : interface.enumerations)
        if (isReturned(enumeration))
            for (const Constant& answer : enumeration.constants)
                text += "Q7_ANSWER(" + enumeration.name + ",\n          " +
                        doubleQuoted(enumeration.documentation) + ",\n          " + answer.name +
                        ", " + std::to_string(answer.value) + ", " +
                        doubleQuoted(answer.documentation) + ")\n";
    return text + "// clang-format on\n";
}

std::string cMessages(const Interface& interface)
{
    std::string text = std::string("/* ") + generatedNote + R"( */
#ifndef Q7_MENSAGEM_H
#define Q7_MENSAGEM_H

#include "q7_impressora.h"

/* Diz o que um código de retorno significa e o que fazer, em UTF-8. */
static const char* q7_mensagem(int codigo)
{
    switch (codigo) {
)";
    for (const ResultCode& code : interface.codes)
        text +=
            "    case " + code.name + ":\n        return " + doubleQuoted(messageOf(code)) + ";\n";
    return text + R"(    default:
        return codigo > 0 ? "Erro do sistema ou da rede." : "Código desconhecido.";
    }
}

#endif /* Q7_MENSAGEM_H */
)";
}

} // namespace q7decl
