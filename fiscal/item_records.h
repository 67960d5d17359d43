// The items of fiscal documents, as their item tables take them.
#pragma once

#include "xml_tree.h"

#include <QString>

namespace q7
{

/** What an item of any document has; texts as written in the XML, empty where the element is
 *  missing. */
struct FiscalItem {
    QString number; // nItem of det
    QString code;   // from here on elements of prod
    QString description;
    QString quantity;
    QString unit;
    QString unitPrice;
    QString amount;
};

/** An item of a SAT sale. */
struct CfeItem : FiscalItem {
    QString discount;
    QString other;
    QString apportionedDiscount;
    QString apportionedIncrease;
    QString taxEstimate; // from here on elements of imposto
    QString issqnDeduction;
    QString issqnBase;
};

/** An item of an NFC-e. */
struct NfceItem : FiscalItem {
    QString gtin;
};

/** Fills what every item has from its det element. */
void readCommonFields(const XmlNode& det, FiscalItem& item);

} // namespace q7
