#include "nfce_document.h"

#include "formatters.h"
#include "log.h"

namespace q7
{
namespace
{

// Steps of the reading, as the trace in the log counts them.
constexpr int consultationStep = 3;
constexpr int stepCount = 29;

void trace(const char* what)
{
    writeLog(LogKind::Information, QLatin1String("\n\n=========================\nTESTE ") + what +
                                       QString(57, QLatin1Char('.')) + QLatin1Char('\n'));
}

// Groups of four digits from the end on, each with a blank behind it: the eleven of an access key.
QString withKeyGrouped(QString text)
{
    int end = text.size();
    for (int group = 0; group < 11 && end >= 0; ++group, end -= 4)
        text.insert(end, QLatin1Char(' '));
    return text;
}

NfceItem readItem(const XmlNode& det)
{
    NfceItem item;
    readCommonFields(det, item);
    item.gtin = childText(det.child(u"prod"), "cEAN");
    return item;
}

} // namespace

NfceDocument::NfceDocument(const FiscalXmlDocument& xml) : FiscalXmlDocument(xml)
{
    const int endedAt = readFields();
    writeLog(LogKind::Information,
             "=========================TERMINO CONSTROI OBJ.......................\n");
    // As a character of that code. Odd, and what the log has always had.
    writeLog(LogKind::Information, QChar(endedAt + 1));
    readForTodaysRules();
}

QString NfceDocument::addressOf(int ibgeNumber, NfceAddressKind kind) const
{
    return nfceAddress(ibgeNumber, kind, environment.toInt() == 1);
}

bool NfceDocument::isSimplifiedType2() const
{
    return documentModel == QLatin1String("55") && printFormat == QLatin1String("6");
}

// Returns the step that failed, or the count of steps.
int NfceDocument::readFields()
{
    number = fieldAt("ide|nNF");
    series = fieldAt("ide|serie");
    issueDateTime = fieldAt("ide|dhEmi");
    trace("CASE2 OK");
    if (!readConsultationBlock())
        return consultationStep;
    emissionType = fieldAt("ide|tpEmis");
    readIssuer();
    readRecipient();
    readItems();
    readTotals();
    readPayments();
    change = fieldAt("pag|vTroco");
    protocolNumber = textAt("nfeProc|protNFe|infProt|nProt");
    authorisationDateTime = textAt("nfeProc|protNFe|infProt|dhRecbto");
    fiscalRemarks = fieldAt("infAdic|infAdFisco");
    taxpayerRemarks = fieldAt("infAdic|infCpl");
    approximateTaxes = fieldAt("total|ICMSTot|vTotTrib");
    digestValue = textAt("nfeProc|NFe|Signature|SignedInfo|Reference|DigestValue");
    return stepCount;
}

bool NfceDocument::readConsultationBlock()
{
    const QString keyUrl = textAt("nfeProc|NFe|infNFeSupl|urlChave");
    if (!keyUrl.isEmpty()) {
        accessKey = attributeAt("nfeProc|NFe|infNFe|Id").mid(3, 44); // behind "NFe"
        consultationBlock = withKeyGrouped(keyUrl + QLatin1Char('\n') + accessKey);
        trace("CASE3 OK");
        return true;
    }

    environment = keyUrl;
    writeLog(LogKind::Information, consultationBlock);
    // The state is looked for in a block that is not there yet, so no address is ever found and a
    // note without urlChave ends here. Callers know it by the refusal.
    const QString address =
        addressOf(consultationBlock.left(2).toInt(), NfceAddressKind::Consultation);
    if (address.isEmpty()) {
        trace("CASE3 FALSE");
        return false;
    }
    consultationBlock = withKeyGrouped(address + QLatin1Char('\n') + consultationBlock);
    trace("CASE3 OK 2");
    return true;
}

QString NfceDocument::postalAddressAt(const FieldPath& group, const char* behindStreet) const
{
    const QLatin1Char blank(' ');
    return fieldAt(group + "|xLgr") + behindStreet + fieldAt(group + "|nro") + blank +
           fieldAt(group + "|xCpl") + blank + fieldAt(group + "|xBairro") + blank +
           fieldAt(group + "|xMun") + blank + fieldAt(group + "|UF");
}

QString NfceDocument::placeAt(const FieldPath& group, const char* behindStreet) const
{
    return hasElementAt("nfeProc|NFe|infNFe|" + group)
               ? postalAddressAt(group, behindStreet).simplified()
               : QString();
}

void NfceDocument::readIssuer()
{
    issuerCnpjLine = "CNPJ " + formatCnpj(fieldAt("emit|CNPJ"));
    issuerName = fieldAt("emit|xNome");
    issuerAddress = postalAddressAt("emit|enderEmit", ", ");
    issuerIe = fieldAt("emit|IE");
}

void NfceDocument::readRecipient()
{
    const QString cnpj = fieldAt("dest|CNPJ");
    if (!cnpj.isEmpty())
        recipientCnpj = formatCnpj(cnpj);
    const QString cpf = fieldAt("dest|CPF");
    if (!cpf.isEmpty())
        recipientCpf = formatCpf(cpf);
    recipientForeignId = fieldAt("dest|idEstrangeiro");
    recipientName = fieldAt("dest|xNome");
    // The place of delivery alone, also where there is none: the recipient's own, enderDest, has
    // never been printed.
    recipientAddress = postalAddressAt("entrega", " ").trimmed();
}

void NfceDocument::readItems()
{
    const std::vector<XmlNode> dets = listAt("nfeProc|NFe|infNFe|det");
    items.reserve(dets.size());
    for (const XmlNode& det : dets)
        items.push_back(readItem(det));
}

void NfceDocument::readTotals()
{
    freight = fieldAt("total|ICMSTot|vFrete");
    insurance = fieldAt("total|ICMSTot|vSeg");
    discount = fieldAt("total|ICMSTot|vDesc");
    otherCharges = fieldAt("total|ICMSTot|vOutro");
    total = fieldAt("total|ICMSTot|vNF");
}

void NfceDocument::readPayments()
{
    const std::vector<XmlNode> elements = listAt("nfeProc|NFe|infNFe|pag|detPag");
    for (const Payment& payment : q7::readPayments(elements, "tPag", "vPag")) {
        const XmlNode& element = elements[payments.size()];
        payments.push_back({payment, childText(element, "tPag"), childText(element, "xPag")});
    }
}

void NfceDocument::readForTodaysRules()
{
    documentModel = fieldAt("ide|mod");
    printFormat = fieldAt("ide|tpImp");
    environmentType = fieldAt("ide|tpAmb");
    presence = fieldAt("ide|indPres");
    issuerCnpj = fieldAt("emit|CNPJ");
    issuerCpf = fieldAt("emit|CPF");
    issuerPlace = placeAt("emit|enderEmit", ", ");
    recipientPlace = placeAt("entrega", " ");
    if (recipientPlace.isEmpty())
        recipientPlace = placeAt("dest|enderDest", " ");
    protocolMessage = textAt("nfeProc|protNFe|infProt|xMsg");
    hasConsumptionTaxes = hasElementAt("nfeProc|NFe|infNFe|total|IBSCBSTot");
    cbs = fieldAt("total|IBSCBSTot|gCBS|vCBS");
    ibs = fieldAt("total|IBSCBSTot|gIBS|vIBS");
    selectiveTax = fieldAt("total|ISTot|vIS");
}

} // namespace q7
