#include "document_printing.h"

#include "failure.h"
#include "open_printer.h"
#include "text.h"

#include <CLI/App.hpp>

namespace q7tool
{
namespace
{

constexpr int linesBeforeCut = 5;

/** "0x40" or "64". */
int optionBits(const std::string& text)
{
    try {
        std::size_t end = 0;
        const int bits = std::stoi(text, &end, 0);
        if (end == text.size() && bits >= 0)
            return bits;
    } catch (const std::logic_error&) {
        // told below
    }
    throw Failure{Exit::Usage,
                  "--opcoes não aceita \"" + text + "\".",
                  "Some os valores do cabeçalho q7_impressora.h, por exemplo --opcoes 0x48 ou 72.",
                  {}};
}

int cscNumber(const std::vector<std::string>& csc)
{
    int number = 0;
    if (!csc.empty() && !toNumber(csc.front(), number))
        throw Failure{Exit::Usage,
                      "O identificador do CSC é um número, não \"" + csc.front() + "\".",
                      "Escreva --csc 1 TOKEN.",
                      {}};
    return number;
}

/** The signature of the sale that is cancelled. */
std::string saleSignature(const FiscalFile& cancellation, const std::string& saleFile)
{
    if (saleFile.empty())
        throw Failure{Exit::Usage,
                      "O cancelamento leva o QR code da venda, e falta o arquivo dela.",
                      "Indique a venda: --venda VENDA.xml.",
                      {}};
    FiscalFile sale = readFiscalFile(saleFile);
    if (sale.kind != FiscalFile::Kind::SatSale)
        throw Failure{Exit::Document,
                      saleFile + " não é uma venda: é uma " + nameOf(sale.kind) + '.',
                      "Indique em --venda o CF-e que foi cancelado.",
                      {}};
    if (!cancellation.key.empty() && sale.key != cancellation.key)
        throw Failure{Exit::Document,
                      "O cancelamento é da venda " + cancellation.key + ", e a de " + saleFile +
                          " é a " + sale.key + '.',
                      "Indique em --venda o CF-e que foi cancelado.",
                      {}};
    return std::move(sale.signature);
}

/** What the library says of a document is the document's fault. */
void demandPrinted(const char* call, int result)
{
    try {
        OpenPrinter::demand(call, result);
    } catch (Failure& failure) {
        if (failure.exit == Exit::Refused)
            failure.exit = Exit::Document;
        throw;
    }
}

} // namespace

void addDocumentOptions(CLI::App& command, DocumentOptions& options)
{
    command.add_option("ARQUIVO", options.file, "O XML do documento autorizado")
        ->option_text("(obrigatório)")
        ->required();
    command
        .add_option("--opcoes", options.bits,
                    "A soma das opções da função (Q7CfeOption ou Q7NfceOption)")
        ->option_text("N");
    command.add_option("--csc", options.csc, "Identificador e token do CSC, para NFC-e sem qrCode")
        ->expected(2)
        ->option_text("ID TOKEN");
    command.add_option("--venda", options.sale, "A venda que o cancelamento cancela")
        ->option_text("VENDA.xml");
}

PrintableDocument readDocument(const DocumentOptions& options)
{
    PrintableDocument document;
    document.bits = optionBits(options.bits);
    document.cscId = cscNumber(options.csc);
    if (!options.csc.empty())
        document.csc = options.csc[1];
    document.file = readFiscalFile(options.file);
    if (document.file.kind == FiscalFile::Kind::SatCancellation)
        document.saleSignature = saleSignature(document.file, options.sale);
    return document;
}

void printDocument(const PrinterLibrary& library, const PrintableDocument& document)
{
    const char* text = document.file.text.c_str();
    switch (document.file.kind) {
    case FiscalFile::Kind::SatSale:
        demandPrinted("ImprimeXMLSAT", library.ImprimeXMLSAT(text, document.bits));
        break;
    case FiscalFile::Kind::SatCancellation:
        demandPrinted(
            "ImprimeXMLCancelamentoSAT",
            library.ImprimeXMLCancelamentoSAT(text, document.saleSignature.c_str(), document.bits));
        break;
    default:
        demandPrinted(
            "ImprimeXMLNFCe",
            library.ImprimeXMLNFCe(text, document.cscId, document.csc.c_str(), document.bits));
    }
    OpenPrinter::demand("Corte", library.Corte(linesBeforeCut));
}

} // namespace q7tool
