// The heading that fiscal receipts print beside the logo stored in the printer.
#pragma once

#include <QString>

namespace q7
{

/** Prints a heading in page mode, beside the stored graphic with the key "00". Works on the session's
 *  connection directly: no export is logged, no count looked at.
 *  mode: 1 places the graphic 35 dots to the right. */
void printLogoHeading(const QString& text, int mode);

} // namespace q7
