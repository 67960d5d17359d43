// ImprimeXMLCancelamentoSAT: the extract of the cancellation of a SAT CF-e sale.

#include "cfe_cancel_document.h"
#include "export_frame.h"
#include "formatters.h"
#include "sat_extract.h"

using namespace q7;

namespace
{

constexpr int qrSignatureChars = 344;

void printIssuerAndTitle(const PrinterSession& printer, const CfeCancelDocument& cancellation,
                         int options)
{
    if (!cancellation.tradeName.isEmpty())
        printLine(cancellation.tradeName, AlignCentre, SmallFont);
    printHeading(cancellation.companyName + '\n' + cancellation.address, options);
    printIssuerIds(printer, cancellation.issuerCnpj, cancellation.issuerIe, cancellation.issuerIm);
    // The capital X is how this title has always been printed.
    printLine("EXtrato No. " + cancellation.cfeNumber +
                  "\nCUPOM FISCAL ELETRÔNICO - SAT\nCANCELAMENTO",
              AlignCentre, Emphasised);
    printSatSeparator(printer);
}

// One half of the extract: the sale's data, then the cancellation's.
void printSatUnitAndKey(const CfeCancelDocument& cancellation, const QString& key,
                        const QString& emission, const QString& signature)
{
    printLine(satUnitLine(cancellation.satSerial) + '\n' + formatDateTimeBR(emission), AlignCentre,
              SmallFont, 2);
    printLine(groupsOfFour(key), AlignCentre, SmallEmphasised);
    printKeyBarcode(key);
    printConsultationQrCode(key, emission, cancellation.total, cancellation.consumerId, signature);
}

void printCancellationExtract(const PrinterSession& printer, const CfeCancelDocument& cancellation,
                              const QString& saleSignature, int options)
{
    printIssuerAndTitle(printer, cancellation, options);

    printLine("DADOS DO CUPOM FISCAL ELETRÔNICO CANCELADO", AlignLeft, Emphasised, 2);
    InicializaImpressora();
    printLine(consumerLine(cancellation.consumerId) + "\nTOTAL R$ " + cancellation.total, AlignLeft,
              SmallFont, 2);
    printSatUnitAndKey(cancellation, cancellation.saleKey, cancellation.saleEmission,
                       saleSignature);
    printSatSeparator(printer);

    // The small ô is how this title has always been printed.
    printLine("DADOS DO CUPOM FISCAL ELETRôNICO DE CANCELAMENTO", AlignCentre, SmallEmphasised, 2);
    printSatUnitAndKey(cancellation, cancellation.cancelKey, cancellation.cancelEmission,
                       cancellation.qrSignature);
    printLine("Consulte o QR Code pelo aplicativo \"De olho na nota\", \n"
              "disponível na AppStore(Apple) e PlayStore(Android)",
              AlignCentre, SmallEmphasised);
}

} // namespace

int Q7_CALL ImprimeXMLCancelamentoSAT(const char* dados, const char* assinaturaQRCODE, int param)
{
    const char* xml = textOrEmpty(dados);
    const char* signature = textOrEmpty(assinaturaQRCODE);
    return runCommand({"ImprimeXMLCancelamentoSAT"}, std::tie(xml, signature, param),
                      [&](PrinterSession& printer) {
                          chooseSeparatorWidth(printer);
                          const QString saleSignature = QString::fromUtf8(signature);
                          if (saleSignature.size() != qrSignatureChars)
                              return unlogged(Q7_ERR_SIGNATURE);
                          const CfeCancelDocument cancellation(xml);
                          if (!cancellation.isCancellation())
                              return unlogged(Q7_ERR_FAILED);
                          printCancellationExtract(printer, cancellation, saleSignature, param);
                          return logged(Q7_OK);
                      });
}
