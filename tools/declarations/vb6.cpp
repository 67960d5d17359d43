#include "languages.h"

#include "source_text.h"

namespace q7decl
{
namespace
{

std::string literal(const std::string& text)
{
    return "\"" + replaced(text, "\"", "\"\"") + "\"";
}

std::string nameOf(const Parameter& parameter)
{
    static const std::set<std::string> reserved = {
        "as",      "boolean", "byref",  "byte",     "byval",  "call",   "case",   "const",
        "date",    "dim",     "do",     "double",   "each",   "else",   "end",    "enum",
        "exit",    "false",   "for",    "function", "get",    "goto",   "if",     "in",
        "integer", "is",      "let",    "like",     "long",   "loop",   "me",     "mod",
        "new",     "next",    "not",    "nothing",  "null",   "on",     "option", "or",
        "print",   "public",  "redim",  "resume",   "return", "select", "set",    "single",
        "static",  "stop",    "string", "sub",      "then",   "to",     "true",   "type",
        "until",   "variant", "while",  "with",     "xor",    "open",   "close"};
    return unreserved(parameter.name, reserved);
}

/** Whether the language cannot declare the function as applications should call it. */
bool needsWrapper(const Function& function)
{
    return hasTextArgument(function) || function.result == Kind::ReturnedText;
}

std::string nativeParameter(const Parameter& parameter)
{
    switch (parameter.kind) {
    case Kind::Bytes:
    case Kind::Buffer:
        return "ByRef " + nameOf(parameter) + " As Byte"; // the first element of an array
    case Kind::NumberOut:
    case Kind::CountInOut:
        return "ByRef " + nameOf(parameter) + " As Long";
    default:
        return "ByVal " + nameOf(parameter) + " As Long"; // texts as addresses
    }
}

std::string publicParameter(const Parameter& parameter)
{
    return parameter.kind == Kind::Text ? "ByVal " + nameOf(parameter) + " As String"
                                        : nativeParameter(parameter);
}

std::string documentation(const Function& function)
{
    const std::string prefix = "' ";
    std::string text = comment(prefix, function.summary);
    for (const std::string& paragraph : details(function))
        text += comment(prefix, paragraph);
    for (const Parameter& parameter : function.parameters)
        text += comment("'   ", nameOf(parameter) + ": " + parameter.documentation);
    if (function.result != Kind::Nothing)
        text += comment(prefix, "Devolve " + function.resultDocumentation);
    return text;
}

std::string declaration(const Function& function)
{
    const bool isHidden = needsWrapper(function);
    const bool isSub = function.result == Kind::Nothing;
    return std::string(isHidden ? "Private" : "Public") + " Declare " +
           (isSub ? "Sub " : "Function ") + (isHidden ? "dll" : "") + function.name +
           " Lib \"Q7_Impressora.dll\"" +
           (isHidden ? " Alias \"" + function.name + "\"" : std::string()) + " (" +
           list(function.parameters, ", ", nativeParameter) + ")" + (isSub ? "" : " As Long") +
           "\n";
}

std::string wrapper(const Function& function)
{
    const bool isSub = function.result == Kind::Nothing;
    std::string text = documentation(function) + vb6Signature(function) + "\n";
    std::string conversions;
    for (const Parameter& parameter : function.parameters)
        if (parameter.kind == Kind::Text) {
            const std::string bytes = "utf8_" + nameOf(parameter);
            text += "    Dim " + bytes + "() As Byte\n";
            conversions += "    " + bytes + " = Utf8(" + nameOf(parameter) + ")\n";
        }
    const std::string arguments = list(function.parameters, ", ", [](const Parameter& p) {
        return p.kind == Kind::Text ? "VarPtr(utf8_" + nameOf(p) + "(0))" : nameOf(p);
    });
    text += conversions;
    if (isSub)
        text += "    dll" + function.name + " " + arguments + "\n";
    else if (function.result == Kind::ReturnedText)
        text += "    " + function.name + " = Texto(dll" + function.name + "(" + arguments + "))\n";
    else
        text += "    " + function.name + " = dll" + function.name + "(" + arguments + ")\n";
    return text + (isSub ? "End Sub\n\n" : "End Function\n\n");
}

} // namespace

std::string vb6Signature(const Function& function)
{
    const bool isSub = function.result == Kind::Nothing;
    return std::string("Public ") + (isSub ? "Sub " : "Function ") + function.name + "(" +
           list(function.parameters, ", ", publicParameter) + ")" +
           (isSub                                   ? ""
            : function.result == Kind::ReturnedText ? " As String"
                                                    : " As Long");
}

std::string vb6Module(const Interface& interface)
{
    std::string text = std::string("Attribute VB_Name = \"Q7Impressora\"\n' ") + generatedNote + R"(
'
' Impressoras de cupom e documentos fiscais, pela biblioteca Q7_Impressora. Os textos vão para ela
' em UTF-8, e os que ela devolve são lidos sem ser liberados.
Option Explicit

' A versão para a qual estas declarações foram feitas; compare com GetVersaoDLL.
Public Const Q7_VERSION_TEXT As String = ")" +
                       interface.version + "\"\n";
    for (const Enumeration& enumeration : interface.enumerations) {
        text += "\n" + comment("' ", enumeration.name + ": " + enumeration.documentation);
        for (const Constant& constant : enumeration.constants)
            text += "Public Const " + constant.name +
                    " As Long = " + std::to_string(constant.value) + " ' " +
                    constant.documentation + "\n";
    }
    text += R"(
Private Declare Function WideCharToMultiByte Lib "kernel32" (ByVal CodePage As Long, ByVal dwFlags As Long, ByVal lpWideCharStr As Long, ByVal cchWideChar As Long, ByVal lpMultiByteStr As Long, ByVal cbMultiByte As Long, ByVal lpDefaultChar As Long, ByVal lpUsedDefaultChar As Long) As Long
Private Declare Function lstrlenA Lib "kernel32" (ByVal lpString As Long) As Long
Private Declare Sub CopyMemory Lib "kernel32" Alias "RtlMoveMemory" (ByVal Destination As Long, ByVal Source As Long, ByVal Length As Long)

)";
    for (const Function& function : interface.functions)
        if (needsWrapper(function))
            text += declaration(function);
    text += "\n";
    for (const Function& function : interface.functions)
        if (!needsWrapper(function))
            text += documentation(function) + declaration(function) + "\n";
    text += R"(' Diz o que um código de retorno significa e o que fazer.
Public Function Mensagem(ByVal codigo As Long) As String
    Select Case codigo
)";
    for (const ResultCode& code : interface.codes)
        text += "    Case " + code.name + "\n        Mensagem = " + literal(messageOf(code)) + "\n";
    text += R"(    Case Is > 0
        Mensagem = "Erro do sistema ou da rede, de número " & codigo & "."
    Case Else
        Mensagem = "Código desconhecido: " & codigo & "."
    End Select
End Function

)";
    for (const Function& function : interface.functions)
        if (needsWrapper(function))
            text += wrapper(function);
    text += R"(' UTF-8 até o zero que termina o texto.
Private Function Utf8(ByVal texto As String) As Byte()
    Const CP_UTF8 As Long = 65001
    Dim bytes() As Byte
    Dim quantos As Long
    quantos = WideCharToMultiByte(CP_UTF8, 0, StrPtr(texto), Len(texto), 0, 0, 0, 0)
    ReDim bytes(0 To quantos)
    If quantos > 0 Then
        WideCharToMultiByte CP_UTF8, 0, StrPtr(texto), Len(texto), VarPtr(bytes(0)), quantos, 0, 0
    End If
    Utf8 = bytes
End Function

' O texto fica com quem chamou, que não o libera.
Private Function Texto(ByVal endereco As Long) As String
    Dim bytes() As Byte
    Dim quantos As Long
    If endereco = 0 Then Exit Function
    quantos = lstrlenA(endereco)
    If quantos = 0 Then Exit Function
    ReDim bytes(0 To quantos - 1)
    CopyMemory VarPtr(bytes(0)), endereco, quantos
    Texto = StrConv(bytes, vbUnicode)
End Function
)";
    return asWindowsText(text);
}

} // namespace q7decl
