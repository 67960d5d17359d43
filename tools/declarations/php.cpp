#include "languages.h"

#include "source_text.h"

namespace q7decl
{
namespace
{

std::string literal(const std::string& text)
{
    return "'" + replaced(replaced(text, "\\", "\\\\"), "'", "\\'") + "'";
}

std::string typeOf(const Parameter& parameter)
{
    switch (parameter.kind) {
    case Kind::Text:
        return "?string ";
    case Kind::Bytes:
        return "string ";
    case Kind::Buffer:
        return "?string &";
    case Kind::NumberOut:
        return "?int &";
    case Kind::CountInOut:
        return "int &";
    case Kind::Handle:
        return ""; // anything, null too
    default:
        return "int ";
    }
}

std::string documentedType(Kind kind)
{
    switch (kind) {
    case Kind::Text:
    case Kind::Buffer:
    case Kind::ReturnedText:
        return "string|null";
    case Kind::Bytes:
        return "string";
    case Kind::NumberOut:
        return "int|null";
    case Kind::Handle:
        return "mixed";
    case Kind::Nothing:
        return "void";
    default:
        return "int";
    }
}

std::string argument(const Parameter& parameter)
{
    switch (parameter.kind) {
    case Kind::Text:
        return "self::utf8($" + parameter.name + ")";
    case Kind::NumberOut:
    case Kind::CountInOut:
        return "FFI::addr($_" + parameter.name + ")";
    case Kind::Buffer:
        return "$_" + parameter.name;
    case Kind::Handle:
        return "null";
    default:
        return "$" + parameter.name;
    }
}

std::string documentation(const Function& function)
{
    const std::string prefix = "     * ";
    std::string text = "    /**\n" + comment(prefix, function.summary);
    for (const std::string& paragraph : details(function))
        text += "     *\n" + comment(prefix, paragraph);
    text += "     *\n";
    for (const Parameter& parameter : function.parameters)
        text += comment(prefix, "@param " + documentedType(parameter.kind) + " $" + parameter.name +
                                    " " + parameter.documentation);
    text += comment(prefix, "@return " + documentedType(function.result) + " " +
                                function.resultDocumentation);
    return text + "     */\n";
}

std::string method(const Function& function)
{
    std::string before;
    std::string after;
    std::string buffer;
    for (const Parameter& parameter : function.parameters) {
        // "@" stands for the argument's name, "#" for that of the buffer in front of it.
        const auto add = [&](std::string& text, const char* pattern) {
            text += replaced(replaced(pattern, "@", parameter.name), "#", buffer);
        };
        if (parameter.kind == Kind::Buffer) {
            add(before, "        $_@ = FFI::new('char[' . self::Q7_LONGEST_REPLY . ']');\n");
            buffer = parameter.name;
        } else if (parameter.kind == Kind::NumberOut || parameter.kind == Kind::CountInOut) {
            add(before, parameter.kind == Kind::NumberOut
                            ? "        $_@ = FFI::new('int');\n"
                            : "        $_@ = FFI::new('unsigned int');\n");
            add(before, "        $_@->cdata = $@ ?? -1;\n");
            add(after, "        $@ = $_@->cdata;\n");
            if (!buffer.empty())
                add(after,
                    "        $# = $resultado === self::Q7_OK ? FFI::string($_#, $@) : null;\n");
        }
    }
    const std::string call = "self::biblioteca()->" + function.name + "(" +
                             list(function.parameters, ", ", argument) + ")";
    std::string body = before;
    if (!after.empty())
        body += "        $resultado = " + call + ";\n" + after + "        return $resultado;\n";
    else if (function.result == Kind::ReturnedText)
        body += "        return self::texto(" + call + ");\n";
    else if (function.result == Kind::Nothing)
        body += "        " + call + ";\n";
    else
        body += "        return " + call + ";\n";
    return documentation(function) + "    " + phpSignature(function) + "\n    {\n" + body +
           "    }\n\n";
}

} // namespace

std::string phpSignature(const Function& function)
{
    const std::string result = function.result == Kind::ReturnedText ? "?string"
                               : function.result == Kind::Nothing    ? "void"
                                                                     : "int";
    return "public static function " + function.name + "(" +
           list(function.parameters, ", ",
                [](const Parameter& p) { return typeOf(p) + "$" + p.name; }) +
           "): " + result;
}

std::string phpClass(const Interface& interface)
{
    std::string text = std::string("<?php\n// ") + generatedNote + R"(

declare(strict_types=1);

/**
 * Impressoras de cupom e documentos fiscais, pela biblioteca Q7_Impressora.
 *
 * Precisa da extensão FFI. No Windows a biblioteca é de 32 bits: use um PHP de 32 bits. Os textos
 * vão para ela em UTF-8: um que não é UTF-8 é tomado por Windows-1252 e convertido. Os que ela
 * devolve são lidos sem ser liberados.
 */
final class Q7Impressora
{
    /** A versão para a qual estas declarações foram feitas; compare com GetVersaoDLL. */
    public const Q7_VERSION_TEXT = ')" +
                       interface.version + "';\n\n";
    for (const Enumeration& enumeration : interface.enumerations) {
        text += comment("    // ", enumeration.name + ": " + enumeration.documentation);
        for (const Constant& constant : enumeration.constants)
            text += "    /** " + constant.documentation + ". */\n    public const " +
                    constant.name + " = " + std::to_string(constant.value) + ";\n";
        text += "\n";
    }
    text += "    private const MENSAGENS = [\n";
    for (const ResultCode& code : interface.codes)
        text += "        self::" + code.name + " => " + literal(messageOf(code)) + ",\n";
    text += "    ];\n\n    private const DECLARACOES = [\n";
    for (const Function& function : interface.functions) {
        const std::size_t name = function.declaration.find(' ') + 1;
        // The type and the rest, between which the calling convention stands.
        text += "        ['" + function.declaration.substr(0, name - 1) + "', '" +
                function.declaration.substr(name) + "'],\n";
    }
    text += R"(    ];

    private static ?FFI $biblioteca = null;

    /** Diz o que um código de retorno significa e o que fazer. */
    public static function mensagem(int $codigo): string
    {
        if ($codigo > 0) {
            return "Erro do sistema ou da rede, de número $codigo.";
        }
        return self::MENSAGENS[$codigo] ?? "Código desconhecido: $codigo.";
    }

)";
    for (const Function& function : interface.functions)
        text += method(function);
    text += R"(    private static function biblioteca(): FFI
    {
        if (self::$biblioteca === null) {
            $noWindows = PHP_OS_FAMILY === 'Windows';
            $declaracoes = '';
            foreach (self::DECLARACOES as [$tipo, $resto]) {
                $declaracoes .= $tipo . ($noWindows ? ' __stdcall ' : ' ') . $resto . ";\n";
            }
            $nome = $noWindows ? 'Q7_Impressora.dll' : 'libQ7_Impressora.so';
            self::$biblioteca = FFI::cdef($declaracoes, $nome);
        }
        return self::$biblioteca;
    }

    private static function utf8(?string $texto): ?string
    {
        if ($texto === null || preg_match('//u', $texto) === 1) {
            return $texto;
        }
        return iconv('WINDOWS-1252', 'UTF-8//IGNORE', $texto);
    }

    // O texto fica com quem chamou, que não o libera.
    private static function texto(?FFI\CData $texto): ?string
    {
        return $texto === null ? null : iconv('ISO-8859-1', 'UTF-8', FFI::string($texto));
    }
}
)";
    return text;
}

} // namespace q7decl
