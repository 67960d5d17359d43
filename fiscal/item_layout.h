// The item tables of fiscal receipts: column headers, and items as whole lines.
#pragma once

#include "item_records.h"

namespace q7
{

/** Options of the NFC-e's item table, bits of ImprimeXMLNFCe's param. The bit 0x04 is reserved for it
 *  and changes nothing. */
enum NfceItemOption : int {
    WideCodeColumn = 0x02, // the GTIN in the place of the item's code
    ItemNumberColumn = 0x100,
};

// Item texts have no line ends: every item fills whole lines of the receipt, its amount ending at
// the right margin, so that the texts of all items are printed as one. Widths are in columns; on a
// printer without a paper width (-1) nothing is padded.

/** width2: columns of the small font. */
QString cfeItemHeader(int width2);

QString cfeItemLine(const CfeItem& item, int width2);

QString nfceItemHeader(int options, int width);

QString nfceItemLine(const NfceItem& item, int options, int width);

} // namespace q7
