// "q7_fiscal.ini": under which rules a site prints its fiscal receipts.
#pragma once

#include "ini_file.h"

namespace q7
{

/** The rules that fiscal receipts follow. */
enum class FiscalLayout {
    Original,   // every byte as this library has always printed it
    Version6_0, // the manual of the DANFE NFC-e in its version 6.0
};

/** What the site chose; the original without the file. Read once, when the library loads. */
FiscalLayout fiscalLayout();

/** The choice in a site's file: group "nfce", key "leiaute", values "original" and "6.0". The log
 *  tells the value in force, a value that is neither (it counts as the original) and a file that
 *  cannot be read; nothing when there is no file. */
FiscalLayout fiscalLayoutIn(const IniFile& settings);

} // namespace q7
