#include "printer_library.h"

#include "console.h"
#include "dynamic_library.h"
#include "failure.h"
#include "file_path.h"

#include <array>
#include <filesystem>
#include <fstream>
#include <vector>

namespace q7tool
{
namespace
{

constexpr int ownBits = static_cast<int>(sizeof(void*) * 8);

/** What a library's file says of itself. */
struct LibraryKind {
    std::string system; // empty when it is no library
    int bits = 0;
};

LibraryKind kindOf(const std::string& path)
{
    std::ifstream file(filePath(path), std::ios::binary);
    std::array<char, 4096> head = {};
    file.read(head.data(), head.size());
    const auto byte = [&](std::size_t at) {
        return at < head.size() ? static_cast<unsigned char>(head[at]) : 0U;
    };
    if (byte(0) == 0x7F && byte(1) == 'E' && byte(2) == 'L' && byte(3) == 'F')
        return {"Linux", byte(4) == 1 ? 32 : 64};
    if (byte(0) != 'M' || byte(1) != 'Z')
        return {};
    const std::size_t header = byte(0x3C) | byte(0x3D) << 8U;
    if (byte(header) != 'P' || byte(header + 1) != 'E')
        return {};
    const unsigned machine = byte(header + 4) | byte(header + 5) << 8U;
    constexpr unsigned machine32 = 0x14C;
    return {"Windows", machine == machine32 ? 32 : 64};
}

Failure notLoaded(const std::string& path, const std::string& reason)
{
    const std::string here = "Deixe " + std::string(dynamic::fileName) + " na pasta do q7 (" +
                             programFolder() + ") ou indique o arquivo com --biblioteca.";
    std::error_code ignored;
    if (!std::filesystem::exists(filePath(path), ignored))
        return {Exit::Refused, "A biblioteca " + path + " não foi encontrada.", here, {}};
    const LibraryKind kind = kindOf(path);
    if (kind.system.empty())
        return {Exit::Refused, path + " não é uma biblioteca.", here, {}};
    if (kind.system != dynamic::system)
        return {Exit::Refused,
                "A biblioteca " + path + " é do " + kind.system + " e este programa é do " +
                    dynamic::system + '.',
                here,
                {}};
    if (kind.bits != ownBits)
        return {
            Exit::Refused,
            "A biblioteca " + path + " é de " + std::to_string(kind.bits) +
                " bits e este programa é de " + std::to_string(ownBits) +
                ": um não carrega o outro.",
            "Use a biblioteca e o programa do mesmo pacote. Uma aplicação de 64 bits não carrega "
            "a DLL de 32 bits: ela pode chamar o q7 como processo à parte.",
            {}};
    return {Exit::Refused,
            "A biblioteca " + path + " não pôde ser carregada: " + reason + '.',
            "Copie de novo o arquivo do pacote; se o antivírus o bloqueou, libere-o.",
            {}};
}

Failure otherVersion(const std::string& path, const std::string& what)
{
    return {Exit::Refused, path + ' ' + what, "Use o q7 e a biblioteca do mesmo pacote.", {}};
}

} // namespace

PrinterLibrary::PrinterLibrary(const std::string& wanted)
{
    std::string path = wanted;
    if (path.empty())
        path = utf8Path(filePath(programFolder()) / dynamic::fileName);
    std::string reason;
    void* library = dynamic::load(path, reason);
    std::error_code ignored;
    if (library == nullptr && wanted.empty() && dynamic::hasLibraryPath &&
        !std::filesystem::exists(filePath(path), ignored))
        library = dynamic::load(dynamic::fileName, reason);
    if (library == nullptr)
        throw notLoaded(path, reason);
    m_path = dynamic::pathOf(library, path);

#define Q7_TOOL_LOOK_UP(name)                                                                      \
    name = reinterpret_cast<decltype(name)>(dynamic::function(library, #name));
    Q7_TOOL_FUNCTIONS(Q7_TOOL_LOOK_UP)
#undef Q7_TOOL_LOOK_UP
    if (GetVersaoDLL == nullptr)
        throw otherVersion(m_path, "não é a biblioteca Q7_Impressora.");
    const char* version = GetVersaoDLL();
    m_version = version == nullptr ? "" : version;
#define Q7_TOOL_DEMAND(name)                                                                       \
    if ((name) == nullptr)                                                                         \
        throw otherVersion(m_path, "é da versão " + m_version +                                    \
                                       " e não tem a função " #name "; este q7 é da versão " +     \
                                       programVersion + '.');
    Q7_TOOL_FUNCTIONS(Q7_TOOL_DEMAND)
#undef Q7_TOOL_DEMAND
}

std::string versionConcern(const PrinterLibrary& library)
{
    if (library.version() == programVersion)
        return {};
    return "A biblioteca é da versão " + library.version() + " e este q7 é da versão " +
           programVersion + '.';
}

} // namespace q7tool
