#include "item_records.h"

#include "xml_document.h"

namespace q7
{

void readCommonFields(const QDomNode& det, FiscalItem& item)
{
    const QDomNode prod = det.namedItem("prod");
    item.number = det.toElement().attribute("nItem");
    item.code = childText(prod, "cProd");
    item.description = childText(prod, "xProd");
    item.quantity = childText(prod, "qCom");
    item.unit = childText(prod, "uCom");
    item.unitPrice = childText(prod, "vUnCom");
    item.amount = childText(prod, "vProd");
}

} // namespace q7
