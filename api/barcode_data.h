// What each barcode symbology accepts.
#pragma once

#include "printer_bytes.h"

namespace q7
{

enum BarcodeType : int { UpcA, UpcE, Ean13, Ean8, Code39, Itf, Codabar, Code93, Code128 };

/** m of GS k m n for the first type: the form of the command that carries the data's length. */
constexpr int firstLengthPrefixedType = 65;

/** Whether data begins with a Code 128 subset selector, "{A", "{B" or "{C". */
bool hasSubsetSelector(Bytes data);

/** Whether the data suits the symbology.
 *  choosesSubset: the printer picks the Code 128 subset itself, so that no selector is needed. */
bool isBarcodeData(int type, Bytes data, bool choosesSubset);

} // namespace q7
