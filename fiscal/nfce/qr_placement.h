// How large the QR code of a receipt is printed, and where.
#pragma once

#include <QByteArray>
#include <optional>

namespace q7
{

/** White dots that a QR code needs on each side. */
constexpr int qrQuietZoneDots = 12;

struct QrPlacement {
    int moduleDots;
    int sideDots; // of the largest symbol that a printer makes of the text
    bool isBesideText;
};

/** The side of a QR code of level M, in modules. Printers pack a text in different ways: as bytes
 *  throughout, or its digits and capitals closer, which can save a version or two. */
struct QrSide {
    int mostModules;
    int fewestModules;
};

/** Empty for a text that is too long for any QR code of level M when it is packed as bytes. */
std::optional<QrSide> qrSideOf(const QByteArray& text);

/** Chooses so that the code measures at least 22 mm however the printer packs the text, and fits.
 *  lineDots: the printer's line. besideText: whether the model prints it there.
 *  Empty when there is no such code, or none that fits the line. */
std::optional<QrPlacement> placeQrCode(const QByteArray& text, int lineDots, bool besideText);

} // namespace q7
