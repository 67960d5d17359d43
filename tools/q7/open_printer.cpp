#include "open_printer.h"

#include "open_diagnosis.h"
#include "result_codes.h"
#include "text.h"

namespace q7tool
{

OpenPrinter::OpenPrinter(const PrinterLibrary& library, const PrinterAddress& address)
    : m_library(library), m_address(address)
{
    const int result = library.AbreConexaoImpressora(address.kind, address.model.c_str(),
                                                     address.place.c_str(), address.number);
    if (result == Q7_OK)
        m_state = askState();
    // A refused connection is opened with success: only the next call tells.
    if (result != Q7_OK || m_state.failure == Q7_ERR_NOT_OPEN)
        throw explainOpenFailure(address, gatherEvidence(address, result));
    m_isOpen = true;
}

OpenPrinter::~OpenPrinter()
{
    if (m_isOpen)
        m_library.FechaConexaoImpressora();
}

void OpenPrinter::close()
{
    m_isOpen = false;
    const int result = m_library.FechaConexaoImpressora();
    if (result != Q7_OK)
        throw Failure{Exit::NoLink, "A conexão caiu antes de a impressora receber tudo.",
                      "Veja o que saiu no papel, confira o cabo ou a rede e imprima de novo.",
                      result};
}

PrinterState OpenPrinter::askState() const
{
    return q7tool::askState(m_library, m_address.kind);
}

std::string OpenPrinter::identification(int kind) const
{
    const char* text = m_library.IdImpressora(kind);
    std::string reply = text == nullptr ? "" : text;
    if (!reply.empty() && reply.front() == '-')
        return {}; // a code
    return !reply.empty() && reply.front() == '_' ? reply.substr(1) : reply;
}

void OpenPrinter::demand(const char* call, int result)
{
    if (result >= 0)
        return;
    const ResultCode* code = findResultCode(result);
    const bool isLink = result == Q7_ERR_NOT_OPEN || result == Q7_ERR_NOT_SENT;
    throw Failure{isLink ? Exit::NoLink : Exit::Refused,
                  std::string(call) + " falhou" +
                      (code != nullptr ? ": " + std::string(code->meaning) : "."),
                  code != nullptr && !code->remedy.empty()
                      ? std::string(code->remedy)
                      : "Ligue o log com q7 log ligar, repita e veja q7 log mostrar.",
                  result};
}

} // namespace q7tool
