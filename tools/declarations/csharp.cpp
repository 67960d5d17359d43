#include "languages.h"

#include "source_text.h"

namespace q7decl
{
namespace
{

std::string nameOf(const Parameter& parameter)
{
    static const std::set<std::string> reserved = {
        "base", "bool",  "byte",  "case", "char", "class",  "const", "default", "do",     "else",
        "enum", "event", "false", "for",  "goto", "if",     "in",    "int",     "is",     "lock",
        "long", "new",   "null",  "out",  "ref",  "return", "short", "static",  "string", "switch",
        "this", "throw", "true",  "try",  "uint", "using",  "void",  "while",   "object", "params"};
    return unreserved(parameter.name, reserved);
}

// Texts cross as bytes: the runtime's own conversion is to the system's code page.
std::string nativeType(Kind kind)
{
    switch (kind) {
    case Kind::Nothing:
        return "void";
    case Kind::Text:
    case Kind::Bytes:
    case Kind::Buffer:
        return "byte[]";
    case Kind::NumberOut:
        return "ref int";
    case Kind::CountInOut:
        return "ref uint";
    case Kind::Handle:
    case Kind::ReturnedText:
        return "IntPtr";
    default:
        return "int";
    }
}

std::string publicType(Kind kind)
{
    return kind == Kind::Text || kind == Kind::ReturnedText ? "string" : nativeType(kind);
}

std::string argument(const Parameter& parameter)
{
    std::string name = nameOf(parameter);
    switch (parameter.kind) {
    case Kind::Text:
        return "Utf8(" + name + ")";
    case Kind::NumberOut:
    case Kind::CountInOut:
        return "ref " + name;
    default:
        return name;
    }
}

std::string documentation(const Function& function)
{
    const std::string prefix = "    /// ";
    std::string text = comment(prefix, "<summary>" + asMarkup(function.summary) + "</summary>");
    text += prefix + "<remarks>\n";
    for (const std::string& paragraph : details(function))
        text += comment(prefix, "<para>" + asMarkup(paragraph) + "</para>");
    text += prefix + "</remarks>\n";
    for (const Parameter& parameter : function.parameters)
        text += comment(prefix, "<param name=\"" + nameOf(parameter) + "\">" +
                                    asMarkup(parameter.documentation) + "</param>");
    if (function.result != Kind::Nothing)
        text +=
            comment(prefix, "<returns>" + asMarkup(function.resultDocumentation) + "</returns>");
    return text;
}

std::string method(const Function& function)
{
    const std::string call =
        "Nativo." + function.name + "(" + list(function.parameters, ", ", argument) + ")";
    std::string body = call + ";";
    if (function.result == Kind::ReturnedText)
        body = "return Texto(" + call + ");";
    else if (function.result != Kind::Nothing)
        body = "return " + body;
    return documentation(function) + "    " + csharpSignature(function) + "\n    {\n        " +
           body + "\n    }\n\n";
}

std::string nativeMethod(const Function& function)
{
    return "        [DllImport(Biblioteca, ExactSpelling = true)]\n        internal static "
           "extern " +
           nativeType(function.result) + " " + function.name + "(" +
           list(function.parameters, ", ",
                [](const Parameter& p) { return nativeType(p.kind) + " " + nameOf(p); }) +
           ");\n";
}

} // namespace

std::string csharpSignature(const Function& function)
{
    return "public static " + publicType(function.result) + " " + function.name + "(" +
           list(function.parameters, ", ",
                [](const Parameter& p) { return publicType(p.kind) + " " + nameOf(p); }) +
           ")";
}

std::string csharpClass(const Interface& interface)
{
    std::string text = std::string("// ") + generatedNote + R"(

using System;
using System.Runtime.InteropServices;
using System.Text;

/// <summary>Impressoras de cupom e documentos fiscais, pela biblioteca Q7_Impressora.</summary>
/// <remarks>No Windows a biblioteca é de 32 bits: compile o programa para x86. Os textos vão para
/// ela em UTF-8, e os que ela devolve são lidos sem ser liberados.</remarks>
public static class Q7Impressora
{
    private const string Biblioteca = "Q7_Impressora";

    /// <summary>A versão para a qual estas declarações foram feitas; compare com
    /// GetVersaoDLL.</summary>
    public const string Q7_VERSION_TEXT = ")" +
                       interface.version + "\";\n\n";
    for (const Enumeration& enumeration : interface.enumerations) {
        text += comment("    // ", enumeration.name + ": " + enumeration.documentation);
        for (const Constant& constant : enumeration.constants)
            text += comment("    /// ",
                            "<summary>" + asMarkup(constant.documentation) + ".</summary>") +
                    "    public const int " + constant.name + " = " +
                    std::to_string(constant.value) + ";\n";
        text += "\n";
    }
    text += R"(    /// <summary>Diz o que um código de retorno significa e o que fazer.</summary>
    public static string Mensagem(int codigo)
    {
        switch (codigo)
        {
)";
    text += messageCases(interface.codes);
    text += R"(            default:
                return (codigo > 0 ? "Erro do sistema ou da rede, de número " : "Código desconhecido: ")
                    + codigo + ".";
        }
    }

)";
    for (const Function& function : interface.functions)
        text += method(function);
    text += R"(    // UTF-8 até o zero que termina o texto.
    private static byte[] Utf8(string texto)
    {
        return texto == null ? null : Encoding.UTF8.GetBytes(texto + "\0");
    }

    // O texto fica com quem chamou, que não o libera.
    private static string Texto(IntPtr texto)
    {
        if (texto == IntPtr.Zero)
            return null;
        var letras = new StringBuilder();
        for (int i = 0; Marshal.ReadByte(texto, i) != 0; i++)
            letras.Append((char)Marshal.ReadByte(texto, i));
        return letras.ToString();
    }

    private static class Nativo
    {
)";
    for (const Function& function : interface.functions)
        text += nativeMethod(function);
    return text + "    }\n}\n";
}

} // namespace q7decl
