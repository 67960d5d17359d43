#include "sample_receipts.h"

#include "q7_impressora.h"

#include <fstream>
#include <iterator>
#include <stdexcept>

namespace q7test
{
namespace
{

using Kind = SampleReceipt::Kind;

SampleReceipt sample(const char* name, Kind kind, int options, const std::string& document,
                     const std::string& signature = {})
{
    const std::string path = "examples/documents/" + document + ".xml";
    std::ifstream file(Q7_PROJECT_FOLDER "/" + path);
    if (!file)
        throw std::runtime_error("no document " + path);
    return {name, kind, options, path, {std::istreambuf_iterator<char>(file), {}}, signature};
}

} // namespace

int SampleReceipt::print(const std::string& document) const
{
    switch (kind) {
    case Kind::Sale:
        return ImprimeXMLSAT(document.c_str(), options);
    case Kind::Cancellation:
        return ImprimeXMLCancelamentoSAT(document.c_str(), signature.c_str(), options);
    default:
        return ImprimeXMLNFCe(document.c_str(), 1, "TOKEN", options);
    }
}

const std::vector<SampleReceipt>& sampleReceipts()
{
    static const std::vector<SampleReceipt> receipts = {
        sample("sale", Kind::Sale, 0, "venda-simples"),
        sample("cancellation", Kind::Cancellation, 0, "cancelamento", std::string(344, 'A')),
        sample("note", Kind::Note, 0x1DA, "autorizada-consumidor-cpf"),
        sample("offline-note", Kind::Note, 0, "contingencia-offline"),
    };
    return receipts;
}

} // namespace q7test
