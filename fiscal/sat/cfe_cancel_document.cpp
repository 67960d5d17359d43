#include "cfe_cancel_document.h"

namespace q7
{

CfeCancelDocument::CfeCancelDocument(const char* xml) : CfeDocument(xml, "CFeCanc")
{
    issuerCnpj = fieldAt("ide|CNPJ");
    cancelEmission = fieldAt("ide|dEmi") + fieldAt("ide|hEmi");
    cancelKey = keyAt("Id");
    saleEmission = fieldAt("dEmi") + fieldAt("hEmi");
    // Documents from SAT equipment carry the cancelled key as an attribute.
    saleKey = keyAt("chCanc");
    if (saleKey.isNull())
        saleKey = withoutPrefix(fieldAt("chCanc"));
}

} // namespace q7
