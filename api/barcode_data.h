// What each barcode symbology accepts.
#pragma once

#include <QByteArray>

namespace q7
{

enum BarcodeType : int { UpcA, UpcE, Ean13, Ean8, Code39, Itf, Codabar, Code93, Code128 };

/** m of GS k m n for the first type: the form of the command that carries the data's length. */
constexpr int firstLengthPrefixedType = 65;

/** Whether data begins with a Code 128 subset selector, "{A", "{B" or "{C". */
bool hasSubsetSelector(const QByteArray& data);

/** Whether the data suits the symbology.
 *  choosesSubset: the printer picks the Code 128 subset itself, so that no selector is needed. */
bool isBarcodeData(int type, const QByteArray& data, bool choosesSubset);

} // namespace q7
