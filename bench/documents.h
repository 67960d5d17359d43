// Fiscal documents of any length, for measuring.
#pragma once

#include <string>

/** A CF-e sale with this many items. */
std::string saleXml(int items);
