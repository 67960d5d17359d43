// The table of printer models as it is in force: with the USB identifiers of this site.
#pragma once

#include "ini_file.h"
#include "model_rows.h"

#include <QByteArray>
#include <QString>

namespace q7
{

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
