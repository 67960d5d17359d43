// The states' addresses for NFC-e consumers: consultation pages and the beginnings of QR codes.
#pragma once

#include <QString>

namespace q7
{

enum class NfceAddressKind { QrCode, Consultation };

/** The address that a state publishes, used exactly as stored; empty when it has none or the number
 *  is no state's. ibgeNumber: the first two digits of an access key. */
QString nfceAddress(int ibgeNumber, NfceAddressKind kind, bool isProduction);

} // namespace q7
