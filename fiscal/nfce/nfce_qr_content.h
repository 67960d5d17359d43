// What the QR code of an NFC-e says.
#pragma once

#include "nfce_document.h"

namespace q7
{

/** The note's ready QR text, else one built to version 2. cscId: the CSC's identifier. csc: the
 *  token, which goes into the hash alone. */
QString nfceQrContent(const NfceDocument& note, int cscId, const QString& csc);

} // namespace q7
