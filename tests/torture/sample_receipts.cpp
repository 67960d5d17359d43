#include "sample_receipts.h"

#include "q7_impressora.h"
#include "test_files.h"

namespace q7test
{
namespace
{

using Kind = SampleReceipt::Kind;

SampleReceipt sample(const char* name, Kind kind, int options, const std::string& document,
                     const std::string& signature = {})
{
    const std::string path = "examples/documents/" + document + ".xml";
    return {name, kind, options, path, exampleDocument(document), signature};
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
