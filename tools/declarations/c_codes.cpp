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
    text += "// Q7_NET(nome, valor, significado): erros da rede, que são zero ou positivos.\n";
    for (const Enumeration& enumeration : interface.enumerations)
        if (enumeration.name == "Q7NetError")
            for (const Constant& error : enumeration.constants)
                text += "Q7_NET(" + error.name + ", " + std::to_string(error.value) + ", " +
                        doubleQuoted(error.documentation) + ")\n";
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
