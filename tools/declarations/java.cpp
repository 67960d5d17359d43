#include "languages.h"

#include "source_text.h"

namespace q7decl
{
namespace
{

std::string escaped(const std::string& text)
{
    return replaced(asMarkup(text), "@", "&#64;"); // which begins a tag
}

std::string nameOf(const Parameter& parameter)
{
    static const std::set<std::string> reserved = {
        "abstract", "boolean", "break",  "byte",   "case",  "char",  "class",   "const",  "default",
        "do",       "double",  "else",   "enum",   "final", "float", "for",     "goto",   "if",
        "import",   "int",     "long",   "native", "new",   "null",  "package", "return", "short",
        "static",   "super",   "switch", "this",   "throw", "try",   "void",    "while"};
    return unreserved(parameter.name, reserved);
}

std::string nativeType(Kind kind)
{
    switch (kind) {
    case Kind::Nothing:
        return "void";
    case Kind::Text:
        return "String"; // in UTF-8, by the library's option
    case Kind::Bytes:
    case Kind::Buffer:
        return "byte[]";
    case Kind::NumberOut:
    case Kind::CountInOut:
        return "int[]";
    case Kind::Handle:
    case Kind::ReturnedText:
        return "Pointer";
    default:
        return "int";
    }
}

std::string publicType(Kind kind)
{
    return kind == Kind::ReturnedText ? "String" : nativeType(kind);
}

std::string declaration(const Function& function, const std::string& resultType)
{
    return resultType + " " + function.name + "(" +
           list(function.parameters, ", ",
                [](const Parameter& p) { return nativeType(p.kind) + " " + nameOf(p); }) +
           ")";
}

std::string documentation(const Function& function)
{
    const std::string prefix = "     * ";
    std::string text = "    /**\n" + comment(prefix, escaped(function.summary));
    for (const std::string& paragraph : details(function))
        text += "     *\n" + comment(prefix, "<p>" + escaped(paragraph));
    text += "     *\n";
    for (const Parameter& parameter : function.parameters) {
        const bool isArray =
            parameter.kind == Kind::NumberOut || parameter.kind == Kind::CountInOut;
        text += comment(prefix, "@param " + nameOf(parameter) + " " +
                                    escaped((isArray ? "vetor de um elemento: " : "") +
                                            parameter.documentation));
    }
    if (function.result != Kind::Nothing)
        text += comment(prefix, "@return " + escaped(function.resultDocumentation));
    return text + "     */\n";
}

std::string method(const Function& function)
{
    const std::string call =
        "BIBLIOTECA." + function.name + "(" + list(function.parameters, ", ", nameOf) + ")";
    std::string body = call + ";";
    if (function.result == Kind::ReturnedText)
        body = "return texto(" + call + ");";
    else if (function.result != Kind::Nothing)
        body = "return " + body;
    return documentation(function) + "    " + javaSignature(function) + " {\n        " + body +
           "\n    }\n\n";
}

} // namespace

std::string javaSignature(const Function& function)
{
    return "public static " + declaration(function, publicType(function.result));
}

std::string javaClass(const Interface& interface)
{
    std::string text = std::string("// ") + generatedNote + R"(
package q7;

import com.sun.jna.Function;
import com.sun.jna.Library;
import com.sun.jna.Native;
import com.sun.jna.Platform;
import com.sun.jna.Pointer;
import java.util.HashMap;
import java.util.Map;

/**
 * Impressoras de cupom e documentos fiscais, pela biblioteca Q7_Impressora.
 *
 * <p>No Windows a biblioteca é de 32 bits: use uma máquina virtual Java de 32 bits. Os textos vão
 * para ela em UTF-8, e os que ela devolve são lidos sem ser liberados.
 */
public final class Q7Impressora {
    /** A versão para a qual estas declarações foram feitas; compare com GetVersaoDLL. */
    public static final String Q7_VERSION_TEXT = ")" +
                       interface.version + "\";\n\n";
    for (const Enumeration& enumeration : interface.enumerations) {
        text += comment("    // ", enumeration.name + ": " + enumeration.documentation);
        for (const Constant& constant : enumeration.constants)
            text += "    /** " + escaped(constant.documentation) + ". */\n" +
                    "    public static final int " + constant.name + " = " +
                    std::to_string(constant.value) + ";\n";
        text += "\n";
    }
    text += R"(    private static final Biblioteca BIBLIOTECA = carregada();

    private Q7Impressora() {
    }

    /** Diz o que um código de retorno significa e o que fazer. */
    public static String mensagem(int codigo) {
        switch (codigo) {
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
    text += R"(    private static Biblioteca carregada() {
        Map<String, Object> opcoes = new HashMap<>();
        opcoes.put(Library.OPTION_STRING_ENCODING, "UTF-8");
        if (Platform.isWindows()) {
            opcoes.put(Library.OPTION_CALLING_CONVENTION, Function.ALT_CONVENTION); // stdcall
        }
        return Native.load("Q7_Impressora", Biblioteca.class, opcoes);
    }

    // O texto fica com quem chamou, que não o libera.
    private static String texto(Pointer texto) {
        return texto == null ? null : texto.getString(0, "ISO-8859-1");
    }

    private interface Biblioteca extends Library {
)";
    for (const Function& function : interface.functions)
        text += "        " + declaration(function, nativeType(function.result)) + ";\n\n";
    text.pop_back();
    return text + "    }\n}\n";
}

} // namespace q7decl
