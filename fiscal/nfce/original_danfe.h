// The DANFE NFC-e as this library has always printed it: the consumer's receipt of an NFC-e.
#pragma once

#include "danfe_divisions.h"
#include "printer_session.h"

namespace q7
{

enum class Emission { Normal, Contingency };

/** Prints one copy; does not cut. Of a contingency note the copies alternate between the consumer's
 *  and the establishment's, across calls too.
 *  qrContent: what the QR code says. options: sum of the option bits. */
void printOriginalDanfe(PrinterSession& printer, const NfceDocument& note, const QString& qrContent,
                        Emission emission, int options);

} // namespace q7
