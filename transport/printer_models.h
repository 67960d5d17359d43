// The table of printer models: names, USB identifiers and layout values.
#pragma once

#include "ini_file.h"

#include <QByteArray>
#include <QString>
#include <array>

namespace q7
{

/** One row of the table. Widths in columns; -1 where the model is no receipt printer. */
struct PrinterModel {
    int id;            // model number; the numbering skips 10
    const char* name;  // in capitals, as callers pass it and printers report it
    quint16 vendorId;  // USB
    quint16 productId; // USB
    int codeTable;     // ESC t n
    int qrOffsetLow;   // GS $ nL nH: where the NFC-e places its QR code in page mode
    int qrOffsetHigh;
    int width1; // columns of the normal font
    int width2; // columns of the small font, in which fiscal receipts are set
};

using PrinterModels = std::array<PrinterModel, 11>;

/** The models with rules of their own. */
enum ModelId : int {
    VoltaModel = 2,
    OrlaKModel = 3,
    SorbeModel = 7,
    DunelModel = 9,
};

/** The rows, in the order in which a printer's reply is searched for their names. Built once when
 *  the library loads, USB identifiers of "q7_usb.ini" included. */
const PrinterModels& modelTable();

/** The row with this number, or null. */
const PrinterModel* modelById(int id);

/** The row with exactly this name (capitals), or null. */
const PrinterModel* modelByName(const QString& name);

/** The form in which Windows hardware identifiers carry a model's USB identifiers,
 *  "VID_0ABC&PID_0012"; "VID_&PID_", which matches nothing, for a name not in the table. */
QString makeUsbIdText(const QString& modelName);

/** Replaces the USB identifiers of rows by those of an INI file: a group per model name, keys
 *  "vendor_id" and "product_id" of one to four hexadecimal digits. Anything else is ignored and
 *  logged. */
void applyUsbIdentifiers(PrinterModels& models, const IniFile& settings);

} // namespace q7
