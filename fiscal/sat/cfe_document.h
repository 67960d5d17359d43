// What the CF-e documents of SAT equipment, sale and cancellation, have in common.
#pragma once

#include "xml_document.h"

namespace q7
{

/** Read once when made, and only read from then on. Texts as written in the XML, empty where the
 *  element is missing. */
class CfeDocument : public FiscalXmlDocument
{
public:
    QString tradeName;
    QString companyName;
    QString address; // street, number, district, city and state, trimmed
    QString issuerIe;
    QString issuerIm;
    QString satSerial; // of the SAT unit
    QString cfeNumber;
    QString total;
    QString qrSignature;

protected:
    /** root: the name of the document's root element. */
    CfeDocument(const char* xml, const QString& root);

    /** A field below the root's infCFe. */
    QString fieldAt(const FieldPath& path) const { return textAt(m_root + path); }

    /** An attribute of infCFe that holds an access key: the key without its prefix "CFe". */
    QString keyAt(const QString& attribute) const;

    static QString withoutPrefix(QString key);

private:
    QString m_root; // "CFe|infCFe|"
};

} // namespace q7
