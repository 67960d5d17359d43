#include "languages.h"

#include "source_text.h"

#include <algorithm>

namespace q7decl
{
namespace
{

std::string nameOf(const Parameter& parameter)
{
    static const std::set<std::string> reserved = {"and",   "as",    "assert", "async", "await",
                                                   "class", "def",   "del",    "elif",  "else",
                                                   "for",   "from",  "global", "if",    "import",
                                                   "in",    "is",    "lambda", "not",   "or",
                                                   "pass",  "raise", "return", "try",   "while",
                                                   "with",  "yield", "none",   "true",  "false",
                                                   "type"}; // the last is the language's own function
    return unreserved(parameter.name, reserved);
}

bool isBuffer(const Parameter& parameter)
{
    return parameter.kind == Kind::Buffer;
}

/** Those that the function writes, which Python returns beside the result. */
std::vector<Parameter> outputs(const Function& function)
{
    std::vector<Parameter> result;
    std::copy_if(function.parameters.begin(), function.parameters.end(), std::back_inserter(result),
                 [](const Parameter& p) { return p.kind == Kind::NumberOut || isBuffer(p); });
    return result;
}

std::vector<Parameter> inputs(const Function& function)
{
    std::vector<Parameter> result;
    std::remove_copy_if(function.parameters.begin(), function.parameters.end(),
                        std::back_inserter(result), isBuffer);
    // What is only handed back may be left out, and so comes last.
    std::stable_partition(result.begin(), result.end(),
                          [](const Parameter& p) { return p.kind != Kind::NumberOut; });
    return result;
}

std::string hint(Kind kind)
{
    switch (kind) {
    case Kind::Text:
    case Kind::ReturnedText:
        return "str";
    case Kind::Bytes:
        return "bytes";
    case Kind::Nothing:
        return "None";
    default:
        return "int";
    }
}

std::string resultHint(const Function& function)
{
    const std::vector<Parameter> out = outputs(function);
    if (out.empty())
        return hint(function.result);
    return "Tuple[" + hint(function.result) + ", " +
           list(out, ", ",
                [](const Parameter& p) { return std::string(isBuffer(p) ? "bytes" : "int"); }) +
           "]";
}

std::string ctype(Kind kind)
{
    switch (kind) {
    case Kind::Nothing:
        return "None";
    case Kind::Text:
    case Kind::Bytes:
    case Kind::Buffer:
    case Kind::ReturnedText: // read, never freed
        return "ctypes.c_char_p";
    case Kind::NumberOut:
        return "ctypes.POINTER(ctypes.c_int)";
    case Kind::CountInOut:
        return "ctypes.POINTER(ctypes.c_uint)";
    case Kind::Handle:
        return "ctypes.c_void_p";
    default:
        return "ctypes.c_int";
    }
}

std::string signature(const Parameter& parameter)
{
    std::string name = nameOf(parameter);
    if (parameter.kind == Kind::Handle)
        return name; // anything, None too
    return name + ": " + hint(parameter.kind) + (parameter.kind == Kind::NumberOut ? " = -1" : "");
}

std::string argument(const Parameter& parameter)
{
    std::string name = nameOf(parameter);
    switch (parameter.kind) {
    case Kind::Text:
        return "_utf8(" + name + ")";
    case Kind::NumberOut:
    case Kind::CountInOut:
        return "ctypes.byref(_" + name + ")";
    case Kind::Buffer:
        return "_" + name;
    default:
        return name;
    }
}

std::string documentation(const Function& function)
{
    const std::string prefix = "    ";
    const std::string indented = "        ";
    // Wrapped without its quotes, which stand at both ends.
    std::string text = "    \"\"\"" + comment(prefix, function.summary).substr(prefix.size());
    for (const std::string& paragraph : details(function))
        text += "\n" + comment(prefix, replaced(paragraph, "\\", "\\\\"));
    if (!function.parameters.empty())
        text += "\n";
    for (const Parameter& parameter : function.parameters) {
        std::string says = parameter.documentation;
        if (parameter.kind == Kind::NumberOut)
            says += " Aqui, o valor que fica quando a função não o escreve.";
        text += comment(indented, nameOf(parameter) + ": " + says)
                    .substr(indented.size() - prefix.size());
    }
    if (function.result != Kind::Nothing) {
        std::string says = "Devolve " + function.resultDocumentation;
        const std::vector<Parameter> out = outputs(function);
        if (!out.empty())
            says += " Atrás dele, na mesma tupla: " + list(out, ", ", nameOf) + ".";
        text += "\n" + comment(prefix, says);
    }
    return replaced(text, "(\"\\n\")", "(\"\\\\n\")") + "    \"\"\"\n";
}

std::string definition(const Function& function)
{
    std::string text = pythonSignature(function) + ":\n" + documentation(function);
    std::string results;
    for (const Parameter& parameter : function.parameters) {
        // "@" stands for the argument's name.
        const auto named = [&](const char* pattern) {
            return replaced(pattern, "@", nameOf(parameter));
        };
        if (parameter.kind == Kind::NumberOut) {
            text += named("    _@ = ctypes.c_int(@)\n");
            results += named(", _@.value");
        } else if (parameter.kind == Kind::CountInOut) {
            text += named("    _@ = ctypes.c_uint(@)\n");
            // The count belongs to the buffer in front of it.
            results = replaced(results, "[:]", named("[:_@.value if resultado == Q7_OK else 0]"));
        } else if (isBuffer(parameter)) {
            text += named("    _@ = ctypes.create_string_buffer(Q7_LONGEST_REPLY)\n");
            results += named(", _@[:]");
        }
    }
    const std::string call =
        "_biblioteca." + function.name + "(" + list(function.parameters, ", ", argument) + ")";
    if (!results.empty())
        return text + "    resultado = " + call + "\n    return resultado" + results + "\n\n\n";
    if (function.result == Kind::ReturnedText)
        return text + "    return _texto(" + call + ")\n\n\n";
    if (function.result == Kind::Nothing)
        return text + "    " + call + "\n\n\n";
    return text + "    return " + call + "\n\n\n";
}

} // namespace

std::string pythonSignature(const Function& function)
{
    return "def " + function.name + "(" + list(inputs(function), ", ", signature) + ") -> " +
           resultHint(function);
}

std::string pythonModule(const Interface& interface)
{
    std::string text = std::string("# ") + generatedNote + R"(
"""Impressoras de cupom e documentos fiscais, pela biblioteca Q7_Impressora.

No Windows a biblioteca é de 32 bits: use um Python de 32 bits. Ela é procurada ao lado deste
arquivo e depois onde o sistema procura. Os textos vão para ela em UTF-8; o que uma função escreveria
nos seus argumentos, aqui ela devolve.
"""

import ctypes
import os
import sys
from typing import Tuple

# A versão para a qual estas declarações foram feitas; compare com GetVersaoDLL().
Q7_VERSION_TEXT = ")" + interface.version +
                       "\"\n";
    for (const Enumeration& enumeration : interface.enumerations) {
        text += "\n" + comment("# ", enumeration.name + ": " + enumeration.documentation);
        for (const Constant& constant : enumeration.constants)
            text += constant.name + " = " + std::to_string(constant.value) + "  # " +
                    constant.documentation + "\n";
    }
    text += "\n_MENSAGENS = {\n";
    for (const ResultCode& code : interface.codes)
        text += "    " + code.name + ": " + doubleQuoted(messageOf(code)) + ",\n";
    text += R"(}


def mensagem(codigo: int) -> str:
    """Diz o que um código de retorno significa e o que fazer."""
    if codigo > 0:
        return f"Erro do sistema ou da rede, de número {codigo}."
    return _MENSAGENS.get(codigo, f"Código desconhecido: {codigo}.")


def _carregada():
    no_windows = sys.platform == "win32"
    nome = "Q7_Impressora.dll" if no_windows else "libQ7_Impressora.so"
    ao_lado = os.path.join(os.path.dirname(os.path.abspath(__file__)), nome)
    carregador = ctypes.WinDLL if no_windows else ctypes.CDLL  # stdcall no Windows
    return carregador(ao_lado if os.path.exists(ao_lado) else nome)


def _utf8(texto):
    return texto.encode("utf-8") if isinstance(texto, str) else texto


def _texto(latin1):
    return None if latin1 is None else latin1.decode("latin-1")


_biblioteca = _carregada()
for _nome, _resultado, _argumentos in (
)";
    for (const Function& function : interface.functions)
        text += "    (\"" + function.name + "\", " + ctype(function.result) + ", [" +
                list(function.parameters, ", ", [](const Parameter& p) { return ctype(p.kind); }) +
                "]),\n";
    text += R"():
    getattr(_biblioteca, _nome).restype = _resultado
    getattr(_biblioteca, _nome).argtypes = _argumentos


)";
    for (const Function& function : interface.functions)
        text += definition(function);
    text.resize(text.size() - 2); // the file ends with one line end
    return text;
}

} // namespace q7decl
