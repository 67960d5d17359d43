// The heading that fiscal receipts print beside the logo stored in the printer.
#pragma once

#include <QString>

namespace q7
{

/** Widths of the two columns in which receipts use page mode: a graphic or a QR code at the left, its
 *  text to the right. */
constexpr int pictureColumnDots = 225;
constexpr int textColumnDots = 366;

enum class LogoPlace {
    LeftMargin,
    Indented, // 35 dots to the right
};

/** Prints a heading in page mode, beside the stored graphic with the key "00". Works on the session's
 *  connection directly: no export is logged, no count looked at. */
void printLogoHeading(const QString& text, LogoPlace place);

} // namespace q7
