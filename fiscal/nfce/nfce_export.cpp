// ImprimeXMLNFCe: checks an NFC-e and prints its DANFE.

#include "danfe_6_0.h"
#include "export_frame.h"
#include "fiscal_settings.h"
#include "nfce_document.h"
#include "nfce_qr_content.h"
#include "original_danfe.h"

using namespace q7;

namespace
{

constexpr unsigned highestOptions = 0xFFFF;
constexpr int linesBeforeSecondCopy = 5;
constexpr int normalEmission = 1;

/** The taxpayer's security code, as ImprimeXMLNFCe gets it. */
struct Csc {
    int id;
    QString token;
};

int checkVersion(const FiscalXmlDocument& xml)
{
    const QString version = xml.attributeAt("nfeProc|NFe|infNFe|versao");
    if (version.isEmpty())
        return Q7_ERR_NFCE_NO_VERSION;
    return version == QLatin1String("4.00") ? Q7_OK : Q7_ERR_NFCE_VERSION;
}

Outcome printOriginal(PrinterSession& printer, const NfceDocument& note, const Csc& csc,
                      int options)
{
    const int emissionType = note.emissionType.toInt();
    if (emissionType < normalEmission)
        return unlogged(Q7_ERR_NFCE_EMISSION);
    const Emission emission =
        emissionType == normalEmission ? Emission::Normal : Emission::Contingency;
    const QString qrContent = nfceQrContent(note, csc.id, csc.token);
    printOriginalDanfe(printer, note, qrContent, emission, options);
    if (emission == Emission::Contingency && (options & SingleCopy) == 0) {
        Corte(linesBeforeSecondCopy);
        printOriginalDanfe(printer, note, qrContent, emission, options);
    }
    return logged(Q7_OK);
}

// A delivery needs to know whom it goes to, and where.
void warnOfDeliveryToNobody(const NfceDocument& note)
{
    constexpr int homeDelivery = 4;
    if (note.presence.toInt() == homeDelivery &&
        (note.recipientName.isEmpty() || note.recipientPlace.isEmpty()))
        writeLog(LogKind::Information,
                 "NFC-e COM ENTREGA EM DOMICILIO (indPres 4) SEM NOME OU ENDERECO DO CONSUMIDOR");
}

Outcome printVersion6_0(PrinterSession& printer, const NfceDocument& note, const Csc& csc,
                        int options)
{
    if (note.documentModel == QLatin1String("55") && !note.isSimplifiedType2())
        return unlogged(Q7_ERR_NFCE_MODEL);
    if (note.emissionType.toInt() < normalEmission)
        return unlogged(Q7_ERR_NFCE_EMISSION);
    const std::optional<QString> qrContent = currentQrContent(note, csc.id, csc.token);
    const std::optional<QrPlacement> qr =
        qrContent ? qrPlacementOn(printer.model(), *qrContent) : std::nullopt;
    if (!qr)
        return unlogged(Q7_ERR_NFCE_QR);
    warnOfDeliveryToNobody(note);
    printDanfe6_0(printer, note, *qrContent, *qr, DanfeCopy::Consumers, options);
    if (note.isPending() && (options & SingleCopy) == 0) {
        Corte(linesBeforeSecondCopy);
        printDanfe6_0(printer, note, *qrContent, *qr, DanfeCopy::Establishments, options);
    }
    return logged(Q7_OK);
}

} // namespace

int Q7_CALL ImprimeXMLNFCe(const char* dados, int indexcsc, const char* csc, int param)
{
    const char* text = textOrEmpty(dados);
    const char* token = textOrEmpty(csc);
    return runCommand(
        {"ImprimeXMLNFCe"}, std::tie(text, indexcsc, token, param), [&](PrinterSession& printer) {
            if (static_cast<unsigned>(param) > highestOptions)
                return unlogged(Q7_ERR_NFCE_OPTIONS);
            const FiscalXmlDocument xml(text);
            if (const int result = checkVersion(xml); result != Q7_OK)
                return unlogged(result);
            const NfceDocument note(xml);
            const auto& printLayout =
                fiscalLayout() == FiscalLayout::Version6_0 ? printVersion6_0 : printOriginal;
            return printLayout(printer, note, {indexcsc, QString::fromUtf8(token)}, param);
        });
}
