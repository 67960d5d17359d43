#include "languages.h"

#include "source_text.h"

namespace q7decl
{
namespace
{

std::string nameOf(const Parameter& parameter)
{
    static const std::set<std::string> reserved = {
        "and",    "array",     "as",      "begin",    "case",   "class",     "const",  "div",
        "do",     "downto",    "else",    "end",      "except", "exports",   "file",   "finally",
        "for",    "function",  "goto",    "if",       "in",     "inherited", "is",     "label",
        "mod",    "nil",       "not",     "object",   "of",     "on",        "or",     "out",
        "packed", "procedure", "program", "property", "raise",  "record",    "repeat", "result",
        "set",    "shl",       "shr",     "string",   "then",   "to",        "try",    "type",
        "unit",   "until",     "uses",    "var",      "while",  "with",      "xor"};
    return unreserved(parameter.name, reserved);
}

// In pieces: the language's literals are short.
std::string literal(const std::string& text)
{
    constexpr std::size_t pieceColumns = 80;
    const std::vector<std::string> lines = wrapped(text, pieceColumns);
    return list(lines, " +\n        ", [&](const std::string& line) {
        return "'" + replaced(line, "'", "''") + (&line == &lines.back() ? "'" : " '");
    });
}

std::string nativeType(Kind kind)
{
    switch (kind) {
    case Kind::Text:
    case Kind::Bytes:
    case Kind::Buffer:
    case Kind::ReturnedText:
        return "PAnsiChar";
    case Kind::CountInOut:
        return "Cardinal";
    case Kind::Handle:
        return "Pointer";
    default:
        return "Integer";
    }
}

std::string parameterText(const Parameter& parameter, bool isNative)
{
    const std::string name = nameOf(parameter);
    if (parameter.kind == Kind::NumberOut || parameter.kind == Kind::CountInOut)
        return "var " + name + ": " + nativeType(parameter.kind);
    if (parameter.kind == Kind::Text && !isNative)
        return "const " + name + ": TQ7Texto";
    return name + ": " + nativeType(parameter.kind);
}

std::string heading(const Function& function, const std::string& name, bool isNative)
{
    std::string text = (function.result == Kind::Nothing ? "procedure " : "function ") + name;
    if (!function.parameters.empty())
        text += "(" +
                list(function.parameters, "; ",
                     [&](const Parameter& p) { return parameterText(p, isNative); }) +
                ")";
    if (function.result == Kind::ReturnedText)
        text += isNative ? ": PAnsiChar" : ": TQ7Texto";
    else if (function.result != Kind::Nothing)
        text += ": Integer";
    return text + ";";
}

std::string documentation(const Function& function)
{
    std::string text = comment("// ", function.summary);
    for (const std::string& paragraph : details(function))
        text += comment("// ", paragraph);
    for (const Parameter& parameter : function.parameters)
        text += comment("//   ", nameOf(parameter) + ": " + parameter.documentation);
    if (function.result != Kind::Nothing)
        text += comment("// ", "Devolve " + function.resultDocumentation);
    return text;
}

std::string body(const Function& function)
{
    std::string call = "ext" + function.name;
    if (!function.parameters.empty())
        call += "(" +
                list(function.parameters, ", ",
                     [](const Parameter& p) {
                         return p.kind == Kind::Text ? "PAnsiChar(UTF8Encode(" + nameOf(p) + "))"
                                                     : nameOf(p);
                     }) +
                ")";
    if (function.result == Kind::ReturnedText)
        call = "Result := Texto(" + call + ")";
    else if (function.result != Kind::Nothing)
        call = "Result := " + call;
    return delphiSignature(function) + "\nbegin\n  " + call + ";\nend;\n\n";
}

} // namespace

std::string delphiSignature(const Function& function)
{
    return heading(function, function.name, false);
}

std::string delphiUnit(const Interface& interface)
{
    std::string text = std::string("// ") + generatedNote + R"(
//
// Impressoras de cupom e documentos fiscais, pela biblioteca Q7_Impressora, para Delphi (desde o 7)
// e Free Pascal. No Windows a biblioteca é de 32 bits: compile o programa para Win32. Os textos vão
// para ela em UTF-8, e os que ela devolve são lidos sem ser liberados.
unit Q7Impressora;

{$IFDEF FPC}
  {$MODE DELPHI}
  {$CODEPAGE CP1252}
{$ENDIF}

interface

type
{$IF DEFINED(FPC) OR DEFINED(UNICODE)}
  TQ7Texto = UnicodeString;
{$ELSE}
  TQ7Texto = WideString;
{$IFEND}

const
  // A versão para a qual estas declarações foram feitas; compare com GetVersaoDLL.
  Q7_VERSION_TEXT = ')" +
                       interface.version + "';\n";
    for (const Enumeration& enumeration : interface.enumerations) {
        text += "\n" + comment("  // ", enumeration.name + ": " + enumeration.documentation);
        for (const Constant& constant : enumeration.constants)
            text += "  " + constant.name + " = " + std::to_string(constant.value) + "; // " +
                    constant.documentation + "\n";
    }
    text += R"(
// Diz o que um código de retorno significa e o que fazer.
function Mensagem(codigo: Integer): TQ7Texto;

)";
    for (const Function& function : interface.functions)
        text += documentation(function) + delphiSignature(function) + "\n\n";
    text += R"(implementation

uses
  SysUtils;

const
  Biblioteca = {$IFDEF MSWINDOWS}'Q7_Impressora.dll'{$ELSE}'libQ7_Impressora.so'{$ENDIF};

)";
    for (const Function& function : interface.functions)
        text += heading(function, "ext" + function.name, true) +
                "\n  {$IFDEF MSWINDOWS}stdcall{$ELSE}cdecl{$ENDIF}; external Biblioteca name '" +
                function.name + "';\n";
    text += R"(
// O texto fica com quem chamou, que não o libera.
function Texto(latin1: PAnsiChar): TQ7Texto;
var
  i: Integer;
begin
  Result := '';
  if latin1 = nil then
    Exit;
  SetLength(Result, StrLen(latin1));
  for i := 1 to Length(Result) do
    Result[i] := WideChar(Ord(latin1[i - 1]));
end;

function Mensagem(codigo: Integer): TQ7Texto;
begin
  case codigo of
)";
    for (const ResultCode& code : interface.codes)
        text += "    " + code.name + ":\n      Result := " + literal(messageOf(code)) + ";\n";
    text += R"(  else
    if codigo > 0 then
      Result := 'Erro do sistema ou da rede, de número ' + TQ7Texto(IntToStr(codigo)) + '.'
    else
      Result := 'Código desconhecido: ' + TQ7Texto(IntToStr(codigo)) + '.';
  end;
end;

)";
    for (const Function& function : interface.functions)
        text += body(function);
    return asWindowsText(text + "end.\n");
}

} // namespace q7decl
