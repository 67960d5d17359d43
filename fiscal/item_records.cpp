#include "item_records.h"

#include "xml_document.h"

namespace q7
{

void readCommonFields(const XmlNode& det, FiscalItem& item)
{
    const XmlNode prod = det.child(u"prod");
    item.number = det.attribute(u"nItem");
    item.code = childText(prod, "cProd");
    item.description = childText(prod, "xProd");
    item.quantity = childText(prod, "qCom");
    item.unit = childText(prod, "uCom");
    item.unitPrice = childText(prod, "vUnCom");
    item.amount = childText(prod, "vProd");
}

} // namespace q7
