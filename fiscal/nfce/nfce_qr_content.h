// What the QR code of an NFC-e says.
#pragma once

#include "nfce_document.h"

#include <optional>

namespace q7
{

/** The note's ready QR text, else one built to version 2. cscId: the CSC's identifier. csc: the
 *  token, which goes into the hash alone. */
QString nfceQrContent(const NfceDocument& note, int cscId, const QString& csc);

/** The same under today's rules: a text that is built is of version 3, and of version 2 while the
 *  note is pending. Empty where none can be built: the key, the environment or the state's address
 *  is missing, or for a pending note the token or the digest. */
std::optional<QString> currentQrContent(const NfceDocument& note, int cscId, const QString& csc);

} // namespace q7
