// Fiscal documents of any length, for measuring.
#pragma once

#include <string>

/** A CF-e sale with this many items. */
std::string saleXml(int items);

/** An authorised NFC-e with this many items, at most 990. It carries its QR text. */
std::string noteXml(int items);
