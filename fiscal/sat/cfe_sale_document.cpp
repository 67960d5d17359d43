#include "cfe_sale_document.h"

#include "formatters.h"

namespace q7
{
namespace
{

CfeItem readItem(const QDomNode& det)
{
    const QDomNode prod = det.namedItem("prod");
    const QDomNode imposto = det.namedItem("imposto");
    const QDomNode issqn = imposto.namedItem("ISSQN");
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
    const QDomNodeList dets = listAt("CFe|infCFe|det");
    items.reserve(static_cast<std::size_t>(dets.length()));
    for (int i = 0; i < dets.length(); ++i)
        items.push_back(readItem(dets.item(i)));
}

} // namespace q7
