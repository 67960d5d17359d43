// The payments of fiscal documents.
#pragma once

#include "xml_tree.h"

#include <QString>
#include <vector>

namespace q7
{

struct Payment {
    QString name; // of the method, the same in every document
    double value; // 0 when the field is no number
};

/** The payments that these elements are, in their order. codeName, valueName: the children that hold
 *  the method's code ("01") and the amount. A code without a name keeps the name of the payment
 *  before it (empty for the first), which integrators' receipts have always shown. */
std::vector<Payment> readPayments(const std::vector<XmlNode>& elements, const char* codeName,
                                  const char* valueName);

} // namespace q7
