// The cancellation of a SAT CF-e sale.
#pragma once

#include "cfe_document.h"

namespace q7
{

class CfeCancelDocument : public CfeDocument
{
public:
    /** xml: the cancellation's text, root CFeCanc. */
    explicit CfeCancelDocument(const char* xml);

    bool isCancellation() const { return hasElementAt("CFeCanc|infCFe"); }

    QString issuerCnpj;     // the one under ide, the software house's: kept
    QString cancelEmission; // AAAAMMDDhhmmss
    QString cancelKey;      // 44 digits
    QString saleEmission;   // AAAAMMDDhhmmss
    QString saleKey;        // 44 digits
    QString consumerId;     // no field of the document fills it
};

} // namespace q7
