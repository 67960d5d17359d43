#include "sample_receipts.h"

#include "q7_impressora.h"

#include <fstream>
#include <iterator>
#include <stdexcept>

namespace q7test
{
namespace
{

std::string document(const char* name)
{
    std::ifstream file(std::string(Q7_EXAMPLE_DOCUMENTS) + '/' + name + ".xml");
    if (!file)
        throw std::runtime_error(std::string("no document ") + name);
    return {std::istreambuf_iterator<char>(file), {}};
}

} // namespace

int openOn(HostilePrinter& printer, const char* model)
{
    printer.setModel(model);
    return printer.terminal().empty()
               ? AbreConexaoImpressora(3, model, "127.0.0.1", printer.port())
               : AbreConexaoImpressora(2, model, printer.terminal().c_str(), 9600);
}

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
    using Kind = SampleReceipt::Kind;
    static const std::vector<SampleReceipt> receipts = {
        {"sale", Kind::Sale, 0, document("venda-simples"), {}},
        {"cancellation", Kind::Cancellation, 0, document("cancelamento"), std::string(344, 'A')},
        {"note", Kind::Note, 0x1DA, document("autorizada-consumidor-cpf"), {}},
        {"offline-note", Kind::Note, 0, document("contingencia-offline"), {}},
    };
    return receipts;
}

} // namespace q7test
