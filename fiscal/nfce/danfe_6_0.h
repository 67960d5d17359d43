// The DANFE NFC-e under the manual's version 6.0, which also sets the simplified DANFE of an NF-e.
#pragma once

#include "danfe_divisions.h"
#include "printer_session.h"
#include "qr_placement.h"

#include <optional>

namespace q7
{

/** Where the QR code of a receipt stands on this printer; empty when it cannot be printed there. */
std::optional<QrPlacement> qrPlacementOn(const PrinterModel& model, const QString& qrContent);

enum class DanfeCopy { Consumers, Establishments };

/** Prints one copy; does not cut. Nothing is kept from one to the next.
 *  qrContent: what the QR code says. qr: where it stands. options: sum of the option bits. */
void printDanfe6_0(PrinterSession& printer, const NfceDocument& note, const QString& qrContent,
                   const QrPlacement& qr, DanfeCopy copy, int options);

} // namespace q7
