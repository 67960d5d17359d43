// The access key of a CF-e as a barcode.
#pragma once

#include <QString>
#include <string>

namespace q7
{

/** Prints a key as one Code 128 barcode. Under today's rules one with letters is narrow and right;
 *  otherwise it is sent as if it were digits. ESC/POS: GS k 73. */
void printKeyBarcode(const QString& key);

/** A key for Code 128 as printers take it: digits by pairs (subset C), all from the first letter to
 *  the last by character (subset A). key: digits and capitals. */
std::string keyInSubsets(const QString& key);

} // namespace q7
