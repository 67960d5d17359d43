// Checking a fiscal document against the official schema of its kind, before it is printed.
#pragma once

#include "schema_fault.h"

#include <QByteArray>
#include <QString>

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

struct XsdReport {
    int result;          // Q7_OK, Q7_ERR_XSD_MISSING or Q7_ERR_XSD
    SchemaFaults faults; // with Q7_ERR_XSD at least one
};

/** Validates a document and tells every fault; logs nothing.
 *  document: the XML in the encoding that its prologue declares. kind: an XsdKind; any other number
 *  names no schema. version: for NF-e, 1 for the note with its authorisation (nfeProc), any other
 *  number for the note alone (NFe). schemaFolder: the paths of the schemas, which lie in sub-folders,
 *  follow this text directly.
 *  The result is Q7_ERR_XSD_MISSING when the schema does not exist, Q7_ERR_XSD when it is invalid or
 *  the document does not conform. */
XsdReport checkXsd(const QByteArray& document, int kind, int version, const QString& schemaFolder);

/** The same with the setting "caminho_xsd" for the schemas' folder; returns the result. The outcome
 *  is logged, with the last fault and its line. */
int validateXsd(const QByteArray& document, int kind, int version);

} // namespace q7
