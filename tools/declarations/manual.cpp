#include "manual.h"

#include "languages.h"
#include "source_text.h"

#include <algorithm>
#include <regex>

namespace q7decl
{
namespace
{

class Names
{
public:
    explicit Names(const Interface& interface)
    {
        for (const Function& function : interface.functions)
            known.insert(function.name);
        for (const Enumeration& enumeration : interface.enumerations) {
            known.insert(enumeration.name);
            for (const Constant& constant : enumeration.constants)
                known.insert(constant.name);
        }
    }

    /** The text as markup: what has a meaning there escaped, known names as references. */
    std::string linked(const std::string& text) const
    {
        std::string result;
        static const std::regex word(R"([A-Za-z0-9_]+|[^A-Za-z0-9_]+)");
        for (std::sregex_iterator next(text.begin(), text.end(), word), end; next != end; ++next) {
            const std::string part = next->str();
            result += known.count(part) != 0 ? "`" + part + "`" : escaped(part);
        }
        return result;
    }

private:
    static std::string escaped(const std::string& text)
    {
        std::string result;
        for (const char c : text)
            result += std::string_view("\\*`|_").find(c) != std::string_view::npos
                          ? std::string("\\") + c
                          : std::string(1, c);
        return result;
    }

    std::set<std::string> known;
};

std::string title(const std::string& text, char line)
{
    return text + "\n" + std::string(text.size(), line) + "\n\n";
}

// A page's name differs from what it documents: a reference to the one is not one to the other.
std::string pageOf(const std::string& name)
{
    std::string page = name;
    for (char& c : page)
        if (c >= 'A' && c <= 'Z')
            c = static_cast<char>(c - 'A' + 'a');
    return page;
}

std::string indented(const std::string& text, const std::string& prefix)
{
    return prefix + replaced(text, "\n", "\n" + prefix) + "\n";
}

std::string capitalised(std::string text)
{
    if (!text.empty() && text[0] >= 'a' && text[0] <= 'z')
        text[0] = static_cast<char>(text[0] - 'a' + 'A');
    return text;
}

std::string paragraphs(const std::vector<std::string>& texts, const Names& names)
{
    std::string result;
    for (const std::string& text : texts)
        result +=
            (text.substr(0, 2) == "- " ? "- " + names.linked(text.substr(2)) : names.linked(text)) +
            "\n\n";
    return result;
}

std::string functionPage(const Function& function, const Names& names)
{
    std::string page = title(function.name, '=') + names.linked(function.summary) + "\n\n" +
                       ".. c:function:: " + function.declaration + "\n\n";
    for (const Parameter& parameter : function.parameters)
        page += "   :param " + parameter.name + ": " +
                capitalised(names.linked(parameter.documentation)) + "\n";
    if (function.result != Kind::Nothing)
        page += "   :returns: " + capitalised(names.linked(function.resultDocumentation)) + "\n";
    page += "\n" + paragraphs(function.remarks, names);
    page += "**Efeito:** " + names.linked(function.effect) + "\n\n";
    page += "**ESC/POS:** " + names.linked(function.command) + "\n\n";
    if (!function.errors.empty()) {
        page += title("Códigos", '-');
        for (const std::string& error : function.errors)
            page += "- :doc:`/codigos/" + pageOf(error) + "`\n";
        page += "\n";
    }
    page += title("Exemplo", '-') + ".. code-block:: c\n\n";
    for (const std::string& statement : function.example)
        page += "   " + statement + "\n";
    page += "\n" + title("Em outras linguagens", '-');
    for (const Language& language : languages())
        page += language.name + std::string("\n\n.. code-block:: ") + language.highlighting +
                "\n\n" + indented(language.signature(function), "   ") + "\n";
    return page;
}

std::string codePage(const ResultCode& code, const Interface& interface, const Names& names)
{
    std::string page = title(std::to_string(code.value) + ": " + code.meaning, '=') +
                       ".. c:enumerator:: " + code.name + "\n\n   O valor é " +
                       std::to_string(code.value) + ".\n\n" + title("Causas", '-');
    // The causes are separated by semicolons.
    std::size_t begin = 0;
    while (begin < code.causes.size()) {
        const std::size_t end = std::min(code.causes.find("; ", begin), code.causes.size());
        page += "- " + capitalised(names.linked(code.causes.substr(begin, end - begin))) + ".\n";
        begin = end + 2;
    }
    page += "\n" + title("O que fazer", '-') + capitalised(names.linked(code.remedy)) + ".\n\n";
    std::string returning;
    for (const Function& function : interface.functions)
        if (std::find(function.errors.begin(), function.errors.end(), code.name) !=
            function.errors.end())
            returning += (returning.empty() ? "" : ", ") + ("`" + function.name + "`");
    return returning.empty() ? page : page + title("Quem o devolve", '-') + returning + ".\n";
}

std::string constantsPage(const Interface& interface, const Names& names)
{
    std::string page =
        title("Constantes", '=') + "Os nomes são os mesmos em todas as linguagens.\n\n";
    for (const Enumeration& enumeration : interface.enumerations) {
        if (enumeration.name == "Q7Result")
            continue; // its values have pages
        page += title(enumeration.name, '-') + ".. c:enum:: " + enumeration.name + "\n\n" +
                indented(names.linked(enumeration.documentation), "   ") + "\n";
        // Beside the enumeration, not in it: C's names are in its scope, Sphinx's would be in theirs.
        for (const Constant& constant : enumeration.constants)
            page += ".. c:enumerator:: " + constant.name + "\n\n   ``" +
                    std::to_string(constant.value) + "`` – " +
                    names.linked(constant.documentation) + "\n\n";
    }
    return page;
}

std::string contents(const std::vector<std::string>& pages)
{
    return ".. toctree::\n   :maxdepth: 1\n\n" +
           list(pages, "", [](const std::string& page) { return "   " + pageOf(page) + "\n"; }) +
           "\n";
}

std::string functionsIndex(const Interface& interface)
{
    std::vector<std::string> portuguese;
    std::vector<std::string> english;
    std::vector<std::string> prt;
    for (const Function& function : interface.functions) {
        // The handle is what the two families of other interfaces have in common.
        const bool isPrt = function.name.substr(0, 3) == "Prt";
        if (isPrt)
            prt.push_back(function.name);
        else if (!english.empty() || function.name == "PrinterCreator")
            english.push_back(function.name);
        else
            portuguese.push_back(function.name);
    }
    return title("Funções", '=') + title("Família em português", '-') + contents(portuguese) +
           title("Família em inglês", '-') + contents(english) + title("Família Prt", '-') +
           contents(prt);
}

std::string codesIndex(const Interface& interface)
{
    std::vector<std::string> names;
    for (const ResultCode& code : interface.codes)
        names.push_back(code.name);
    return title("Códigos de retorno", '=') +
           ".. c:enum:: Q7Result\n\n   0 é sucesso; os valores negativos são falhas. Onde uma "
           "função devolve uma quantidade, um valor positivo é ela.\n\n" +
           contents(names);
}

} // namespace

std::map<std::string, std::string> manualPages(const Interface& interface)
{
    const Names names(interface);
    std::map<std::string, std::string> pages;
    for (const Function& function : interface.functions)
        pages["funcoes/" + pageOf(function.name) + ".rst"] = functionPage(function, names);
    for (const ResultCode& code : interface.codes)
        pages["codigos/" + pageOf(code.name) + ".rst"] = codePage(code, interface, names);
    pages["funcoes/index.rst"] = functionsIndex(interface);
    pages["codigos/index.rst"] = codesIndex(interface);
    pages["constantes.rst"] = constantsPage(interface, names);
    return pages;
}

} // namespace q7decl
