#include "cfe_sale_document.h"

#include "formatters.h"

namespace q7
{
namespace
{

CfeItem readItem(const XmlNode& det)
{
    const XmlNode prod = det.child(u"prod");
    const XmlNode imposto = det.child(u"imposto");
    const XmlNode issqn = imposto.child(u"ISSQN");
    CfeItem item;
    readCommonFields(det, item);
    item.discount = childText(prod, "vDesc");
    item.other = childText(prod, "vOutro");
    item.apportionedDiscount = childText(prod, "vRatDesc");
    item.apportionedIncrease = childText(prod, "vRatAcr");
    item.taxEstimate = childText(imposto, "nItem12741"); // not the official vItem12741: kept
    item.issqnDeduction = childText(issqn, "nDeducISSQN");
    item.issqnBase = childText(issqn, "vBC");
    return item;
}

} // namespace

CfeSaleDocument::CfeSaleDocument(const char* xml) : CfeDocument(xml, "CFe")
{
    issuerCnpj = fieldAt("emit|CNPJ");
    softwareHouseCnpj = fieldAt("ide|CNPJ");
    signAC = fieldAt("ide|signAC");
    emission = fieldAt("ide|dEmi") + fieldAt("ide|hEmi");
    accessKey = keyAt("Id");
    const QString cpf = fieldAt("dest|CPF");
    const QString cnpj = fieldAt("dest|CNPJ");
    if (!cpf.isEmpty())
        consumerId = formatCpf(cpf);
    else if (!cnpj.isEmpty())
        consumerId = formatCnpj(cnpj);
    consumerName = fieldAt("dest|xNome");
    totalDiscount = fieldAt("total|ICMSTot|vDesc");
    totalOther = fieldAt("total|ICMSTot|vOutro");
    subtotalDiscount = fieldAt("total|DescAcrEntr|vDescSubtot");
    subtotalIncrease = fieldAt("total|DescAcrEntr|vAcresSubtot");
    change = fieldAt("pgto|vTroco");
    fiscoField = fieldAt("infAdic|obsFisco|xCampo");
    fiscoText = fieldAt("infAdic|obsFisco|xTexto");
    complementaryInfo = fieldAt("infAdic|infCpl");
    taxTotal12741 = fieldAt("total|vCFeLei12741");
    readItems();
    payments = readPayments(listAt("CFe|infCFe|pgto|MP"), "cMP", "vMP");
}

void CfeSaleDocument::readItems()
{
    const std::vector<XmlNode> dets = listAt("CFe|infCFe|det");
    items.reserve(dets.size());
    for (const XmlNode& det : dets)
        items.push_back(readItem(det));
}

} // namespace q7
