// What both receipts of an NFC-e have in common: their options and the divisions they print alike.
#pragma once

#include "nfce_document.h"

namespace q7
{

/** Options of the receipts, bits of ImprimeXMLNFCe's param; for the item table: item_layout.h. */
enum DanfeOption : int {
    WithoutItems = 0x01,
    HeadingBesideLogo = 0x08,
    HomologationNotice = 0x10, // the original alone: today's receipt asks the note
    Separators = 0x40,
    IssuerIe = 0x80,
    SingleCopy = 0x200, // of a contingency note
};

/** Where separators are asked for: a separator. columns: of the receipt's lines. */
void printSeparatorIfAsked(int options, int columns);

/** A section's end where separators are asked for: a separator and a line feed. */
void endSection(int options, int columns);

void printItemTable(const std::vector<NfceItem>& items, int options, int columns);

/** Prints "Qtde. total de itens". */
void printItemCount(const NfceDocument& note, int columns);

/** Prints the heading of the list of payments. */
void printPaymentHeading(int columns);

/** Prints where the note is consulted, and its key. */
void printConsultation(const NfceDocument& note);

} // namespace q7
