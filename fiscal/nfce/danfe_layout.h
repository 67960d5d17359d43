// The DANFE NFC-e: the consumer's receipt of an NFC-e.
#pragma once

#include "nfce_document.h"
#include "printer_session.h"

namespace q7
{

/** Options of the receipt, bits of ImprimeXMLNFCe's param; for the item table: item_layout.h. */
enum DanfeOption : int {
    WithoutItems = 0x01,
    HeadingBesideLogo = 0x08,
    HomologationNotice = 0x10,
    Separators = 0x40,
    IssuerIe = 0x80,
    SingleCopy = 0x200, // of a contingency note
};

enum class Emission { Normal, Contingency };

/** Prints one copy; does not cut. Of a contingency note the copies alternate between the consumer's
 *  and the establishment's, across calls too.
 *  qrContent: what the QR code says. options: sum of the option bits. */
void printDanfe(PrinterSession& printer, const NfceDocument& note, const QString& qrContent,
                Emission emission, int options);

} // namespace q7
