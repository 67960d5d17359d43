// The library as a till program sees it: loaded at run time, called through its public header.
#pragma once

#include "q7_impressora.h"

#include <string>

// The functions that this program calls, with the types that the header gives them.
#define Q7_TOOL_FUNCTIONS(X)                                                                       \
    X(AbreConexaoImpressora)                                                                       \
    X(FechaConexaoImpressora)                                                                      \
    X(GetVersaoDLL)                                                                                \
    X(StatusImpressora)                                                                            \
    X(IdImpressora)                                                                                \
    X(InicializaImpressora)                                                                        \
    X(DefinePosicao)                                                                               \
    X(ImpressaoTexto)                                                                              \
    X(ImpressaoCodigoBarras)                                                                       \
    X(ImpressaoQRCode)                                                                             \
    X(AvancaPapel)                                                                                 \
    X(Corte)                                                                                       \
    X(ImprimeXMLSAT)                                                                               \
    X(ImprimeXMLCancelamentoSAT)                                                                   \
    X(ImprimeXMLNFCe)

namespace q7tool
{

class PrinterLibrary
{
public:
    /** wanted: the library's file; empty for the one beside this program or, on Linux, on the
     *  system's library path. Throws Failure. It stays loaded until the program ends. */
    explicit PrinterLibrary(const std::string& wanted);

    const std::string& path() const { return m_path; }
    const std::string& version() const { return m_version; }

// NOLINTNEXTLINE(bugprone-macro-parentheses): a declaration
#define Q7_TOOL_MEMBER(name) decltype(&::name) name = nullptr;
    Q7_TOOL_FUNCTIONS(Q7_TOOL_MEMBER)
#undef Q7_TOOL_MEMBER

private:
    std::string m_path;
    std::string m_version;
};

/** This program's version; the library's is to be the same. */
constexpr const char* programVersion = Q7_VERSION_TEXT;

/** What is wrong with a library of another version than this program's; empty when it is the same. */
std::string versionConcern(const PrinterLibrary& library);

} // namespace q7tool
