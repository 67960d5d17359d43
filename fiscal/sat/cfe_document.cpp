#include "cfe_document.h"

#include "state_table.h"

namespace q7
{

CfeDocument::CfeDocument(const char* xml, const QString& root)
    : FiscalXmlDocument(xml), m_root(root + "|infCFe|")
{
    tradeName = fieldAt("emit|xFant");
    companyName = fieldAt("emit|xNome");
    const QLatin1Char blank(' ');
    address = (fieldAt("emit|enderEmit|xLgr") + blank + fieldAt("emit|enderEmit|nro") + blank +
               fieldAt("emit|enderEmit|xBairro") + blank + fieldAt("emit|enderEmit|xMun") + blank +
               stateAbbreviation(fieldAt("ide|cUF").toInt()))
                  .trimmed();
    issuerIe = fieldAt("emit|IE");
    issuerIm = fieldAt("emit|IM");
    satSerial = fieldAt("ide|nserieSAT");
    cfeNumber = fieldAt("ide|nCFe");
    total = fieldAt("total|vCFe");
    qrSignature = fieldAt("ide|assinaturaQRCODE");
}

QString CfeDocument::keyAt(const QString& attribute) const
{
    return withoutPrefix(attributeAt(m_root + attribute));
}

QString CfeDocument::withoutPrefix(QString key)
{
    // remove() would move the rest of the text each time.
    return key.replace(QLatin1String("CFe"), QLatin1String());
}

} // namespace q7
