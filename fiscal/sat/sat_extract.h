// What the SAT extracts, sale and cancellation, print alike.
#pragma once

#include "key_barcode.h"
#include "printer_session.h"
#include "receipt_text.h"

namespace q7
{

/** Bit of the extracts' param: the heading beside the logo stored in the printer. */
constexpr int headingBesideLogo = 1;

/** Chooses the columns that the extract's separators span: the normal font's on DUNEL, the small
 *  font's on every other model. */
void chooseSeparatorWidth(PrinterSession& session);

void printSatSeparator(const PrinterSession& session);

/** Prints the heading as centred text, or beside the logo when options ask for it. */
void printHeading(const QString& heading, int options);

/** Prints the issuer's CNPJ, IE and, when there is one, IM, and the separator below them. */
void printIssuerIds(const PrinterSession& session, const QString& cnpj, const QString& ie,
                    const QString& im);

QString consumerLine(const QString& consumerId);

QString satUnitLine(const QString& serial);

/** Prints the QR code by which a CF-e is consulted. emission: AAAAMMDDhhmmss. ESC/POS: GS ( k. */
void printConsultationQrCode(const QString& key, const QString& emission, const QString& total,
                             const QString& consumerId, const QString& signature);

} // namespace q7
