// Checking a fiscal document against the official schema of its kind, before it is printed.
#pragma once

#include <QByteArray>

namespace q7
{

/** What a document is. */
enum XsdKind : int {
    XsdCfeSale = 1,
    XsdCfeCancellation = 2,
    XsdNfe310 = 3, // NF-e and NFC-e, layout 3.10
    XsdNfe400 = 4, // the same, layout 4.00
    XsdCfeSaleInput = 5,
    XsdCfeCancellationInput = 6,
};

/** Validates a document. No export does so by itself.
 *  document: the XML in the encoding that its prologue declares. kind: an XsdKind; any other number
 *  names no schema. version: for NF-e, 1 for the note with its authorisation (nfeProc), any other
 *  number for the note alone (NFe).
 *  The schemas lie in sub-folders of the setting "caminho_xsd", whose text their paths follow
 *  directly. Returns 0; Q7_ERR_XSD_MISSING; Q7_ERR_XSD when the schema is invalid or the document
 *  does not conform. The outcome is logged, with the fault and its line. */
int validateXsd(const QByteArray& document, int kind, int version);

} // namespace q7
