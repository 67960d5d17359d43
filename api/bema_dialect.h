// The other maker's dialect, spoken by one model: its barcode and QR commands.
#pragma once

#include "printer_session.h"

namespace q7
{

/** Prints a QR code; logs as "ImpressaoQRCodeBema". moduleSize: 1..6. level: 1 L, 2 M, 3 Q, 4 H;
 *  higher values pass. A line feed goes first, before the arguments are looked at.
 *  Returns 0; Q7_ERR_QR_EMPTY, _QR_SIZE, _QR_LEVEL, or the failed send's result.
 *  ESC/POS: GS k Q. */
int printBemaQrCode(PrinterSession& printer, const char* data, int moduleSize, int level);

/** Prints a barcode; logs as "ImpressaoCodigoBarrasBema". The arguments are those of
 *  ImpressaoCodigoBarras, already checked; the data ends with a zero byte behind it. A Code 128 subset selector is dropped: this printer
 *  chooses the subset itself.
 *  Returns the data's send result. ESC/POS: GS k m n (function B). */
int printBemaBarcode(PrinterSession& printer, int type, Bytes data, int heightDots,
                     int moduleWidthDots, int hri);

} // namespace q7
