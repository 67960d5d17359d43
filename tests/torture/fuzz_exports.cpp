// Every export that takes a text or a number and awaits no reply, with any bytes and any numbers.

#include "fake_printer.h"
#include "q7_impressora.h"
#include "sample_receipts.h"

#include <climits>
#include <cstdlib>
#include <cstring>
#include <functional>
#include <fuzzer/FuzzedDataProvider.h>

using namespace q7test;

namespace
{

class Arguments
{
public:
    Arguments(const std::uint8_t* data, std::size_t size) : m_data(data, size) {}

    bool areLeft() { return m_data.remaining_bytes() > 0; }
    std::size_t choice(std::size_t count)
    {
        return m_data.ConsumeIntegralInRange<std::size_t>(0, count - 1);
    }
    int number()
    {
        static constexpr int extremes[] = {0, 1, -1, 255, 256, 65535, 65536, INT_MAX, INT_MIN};
        const auto byte = m_data.ConsumeIntegral<std::uint8_t>();
        return byte < 32    ? extremes[byte % std::size(extremes)]
               : byte < 192 ? byte % 16
                            : m_data.ConsumeIntegral<int>();
    }
    /** Sometimes null, sometimes a longer one than any input. Stays until the next call. */
    const char* text()
    {
        m_texts[m_next ^= 1] = m_data.ConsumeRandomLengthString();
        std::string& text = m_texts[m_next];
        const auto kind = m_data.ConsumeIntegral<std::uint8_t>();
        while (kind > 250 && !text.empty() && text.size() < 70'000)
            text += text;
        return kind == 0 ? nullptr : text.c_str();
    }

private:
    FuzzedDataProvider m_data;
    std::string m_texts[2];
    int m_next = 0;
};

void* const handle = nullptr;

// Lines of paper are text in memory: AvancaPapel gets few.
const std::function<void(Arguments&)> exports[] = {
    [](auto& a) { ImpressaoTexto(a.text(), a.number(), a.number(), a.number()); },
    [](auto& a) { EspacamentoEntreLinhas(a.number()); },
    [](auto& a) { DefinePosicao(a.number()); },
    [](auto&) { InicializaImpressora(); },
    [](auto& a) { ImpressaoQRCode(a.text(), a.number(), a.number()); },
    [](auto& a) {
        ImpressaoCodigoBarras(a.number(), a.text(), a.number(), a.number(), a.number());
    },
    [](auto& a) { ImprimeImagemMemoria(a.text(), a.number()); },
    [](auto& a) { Corte(a.number() % 100'000); },
    [](auto& a) { AvancaPapel(a.number() % 100'000); },
    [](auto& a) { AbreGaveta(a.number(), a.number(), a.number()); },
    [](auto& a) { SinalSonoro(a.number(), a.number(), a.number()); },
    [](auto& a) {
        const char* command = a.text();
        DirectIO(command, command != nullptr ? static_cast<int>(std::strlen(command)) : a.number(),
                 nullptr, nullptr);
    },
    [](auto&) { ModoPagina(); },
    [](auto& a) { DirecaoImpressao(a.number()); },
    [](auto& a) { DefineAreaImpressao(a.number(), a.number(), a.number(), a.number()); },
    [](auto& a) { PosicaoImpressaoHorizontal(a.number()); },
    [](auto& a) { PosicaoImpressaoVertical(a.number()); },
    [](auto&) { ImprimeMPeRetornaPadrao(); },
    [](auto& a) { ImprimeXMLSAT(a.text(), a.number()); },
    [](auto& a) {
        const char* document = a.text();
        ImprimeXMLCancelamentoSAT(document, a.text(), a.number());
    },
    [](auto& a) {
        const char* document = a.text();
        ImprimeXMLNFCe(document, a.number(), a.text(), a.number());
    },
    [](auto& a) { PrinterCreator(handle, a.text()); },
    // Hosts and devices of this machine are left alone; an open link would be abandoned.
    [](auto& a) {
        FechaConexaoImpressora();
        PortOpen(handle, ("COM?" + std::string(a.text() == nullptr ? "," : "9,")).c_str());
    },
    [](auto& a) {
        FechaConexaoImpressora();
        AbreConexaoImpressora(a.number() % 3, a.text(), "no/such/port", a.number());
    },
    [](auto& a) { PrintText(handle, a.text(), a.number(), a.number(), a.number()); },
    [](auto& a) { PrintTextS(handle, a.text()); },
    [](auto& a) { SetAlign(handle, a.number()); },
    [](auto& a) { SetTextBold(handle, a.number()); },
    [](auto& a) { SetTextFont(handle, a.number()); },
    [](auto& a) { PrintBarCode(handle, a.number(), a.text(), a.number(), a.number(), a.number()); },
    [](auto& a) { PrintSymbol(handle, a.number(), a.text(), a.number(), a.number()); },
    [](auto& a) { PrintNVImage(handle, a.number(), a.number()); },
    [](auto& a) { DefineNVImage(a.number(), a.number(), a.number(), a.number()); },
    [](auto& a) { OpenDrawer(handle, a.number(), a.number(), a.number()); },
    [](auto& a) { SetPrintAreaInPageMode(handle, a.number(), a.number(), a.number(), a.number()); },
};

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    static TcpPrinter printer({}, TcpPrinter::Keep::Nothing);
    static constexpr const char* models[] = {"VANTA", "ORLA-K", "SORBE", "DUNEL"};
    Arguments arguments(data, size);
    const char* model = models[arguments.choice(std::size(models))];
    printer.change([model](PrinterScript& script) { script.model = model; });
    if (openPatientlyOn(printer, model) != 0)
        std::abort();
    while (arguments.areLeft())
        exports[arguments.choice(std::size(exports))](arguments);
    FechaConexaoImpressora();
    return 0;
}
