// The interface in other languages: each function gives the text of one source file.
#pragma once

#include "interface.h"

#include <string>
#include <vector>

namespace q7decl
{

/** Delphi from 7 on and Free Pascal, in code page 1252. */
std::string delphiUnit(const Interface& interface);
/** C# from 5 on, .NET and Mono. */
std::string csharpClass(const Interface& interface);
/** Visual Basic 6, in code page 1252. */
std::string vb6Module(const Interface& interface);
/** Java from 8 on, over JNA. */
std::string javaClass(const Interface& interface);
/** Python from 3.7 on, over ctypes. */
std::string pythonModule(const Interface& interface);
/** PHP from 7.4 on, over its FFI. */
std::string phpClass(const Interface& interface);
/** The result codes as calls of a macro Q7_CODE(name, value, meaning, causes, remedy), the other
 *  constants that functions return as calls of Q7_ANSWER(enumeration, the enumeration's purpose,
 *  name, value, meaning), for C++. */
std::string cppCodes(const Interface& interface);
/** What the codes' messages are, as a function q7_mensagem, for C. */
std::string cMessages(const Interface& interface);

/** The header's examples as a C program, to be compiled: they must be C, and name what there is. */
std::string headerExamples(const Interface& interface);

/** How an application declares and calls a function in a language, on one line or a few. */
struct Language {
    const char* name;
    const char* highlighting; // what Sphinx calls the language
    std::string (*signature)(const Function&);
};

std::string delphiSignature(const Function& function);
std::string csharpSignature(const Function& function);
std::string vb6Signature(const Function& function);
std::string javaSignature(const Function& function);
std::string pythonSignature(const Function& function);
std::string phpSignature(const Function& function);

const std::vector<Language>& languages();

} // namespace q7decl
