// The items of fiscal documents, as their item tables take them.
#pragma once

#include <QString>

namespace q7
{

/** An item of a SAT sale; texts as written in the XML, empty where the element is missing. */
struct CfeItem {
    QString number; // nItem of det
    QString code;   // from here on elements of prod
    QString description;
    QString quantity;
    QString unit;
    QString unitPrice;
    QString amount;
    QString discount;
    QString other;
    QString apportionedDiscount;
    QString apportionedIncrease;
    QString taxEstimate; // from here on elements of imposto
    QString issqnDeduction;
    QString issqnBase;
};

/** An item of an NFC-e; texts as written in the XML, empty where the element is missing. */
struct NfceItem {
    QString number; // nItem of det
    QString code;   // from here on elements of prod
    QString gtin;
    QString description;
    QString quantity;
    QString unit;
    QString unitPrice;
    QString amount;
};

} // namespace q7
