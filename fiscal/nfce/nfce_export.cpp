// ImprimeXMLNFCe: checks an NFC-e and prints its DANFE.

#include "export_frame.h"
#include "nfce_document.h"
#include "nfce_qr_content.h"
#include "original_danfe.h"

using namespace q7;

namespace
{

constexpr unsigned highestOptions = 0xFFFF;
constexpr int linesBeforeSecondCopy = 5;
constexpr int normalEmission = 1;

int checkVersion(const FiscalXmlDocument& xml)
{
    const QString version = xml.attributeAt("nfeProc|NFe|infNFe|versao");
    if (version.isEmpty())
        return Q7_ERR_NFCE_NO_VERSION;
    return version == QLatin1String("4.00") ? Q7_OK : Q7_ERR_NFCE_VERSION;
}

void printCopies(PrinterSession& printer, const NfceDocument& note, const QString& qrContent,
                 Emission emission, int options)
{
    printOriginalDanfe(printer, note, qrContent, emission, options);
    if (emission == Emission::Normal || (options & SingleCopy) != 0)
        return;
    Corte(linesBeforeSecondCopy);
    printOriginalDanfe(printer, note, qrContent, emission, options);
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
            const int emissionType = note.emissionType.toInt();
            if (emissionType < normalEmission)
                return unlogged(Q7_ERR_NFCE_EMISSION);
            printCopies(printer, note, nfceQrContent(note, indexcsc, QString::fromUtf8(token)),
                        emissionType == normalEmission ? Emission::Normal : Emission::Contingency,
                        param);
            return logged(Q7_OK);
        });
}
