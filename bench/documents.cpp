#include "documents.h"

namespace
{

// The goods of an item, up to what the two documents write differently.
std::string goods(int number)
{
    const std::string text = std::to_string(number);
    return "<det nItem=\"" + text + "\"><prod><cProd>" + std::to_string(7000 + number) +
           "</cProd><cEAN>SEM GTIN</cEAN><xProd>CAFÉ TORRADO E MOÍDO 500G LOTE " + text +
           "</xProd><NCM>09012100</NCM><CFOP>5102</CFOP><uCom>UN</uCom><qCom>2.0000</qCom>";
}

std::string saleItem(int number)
{
    return goods(number) +
           "<vUnCom>17.49</vUnCom><vProd>34.98</vProd><indRegra>A</indRegra><vItem>34.98</vItem>"
           "</prod><imposto><vItem12741>5.42</vItem12741><ICMS><ICMS00><Orig>0</Orig><CST>00</CST>"
           "<pICMS>18.00</pICMS><vICMS>3.14</vICMS></ICMS00></ICMS></imposto></det>";
}

std::string noteItem(int number)
{
    return goods(number) +
           "<vUnCom>17.4900000000</vUnCom><vProd>34.98</vProd><cEANTrib>SEM GTIN</cEANTrib>"
           "<uTrib>UN</uTrib><qTrib>2.0000</qTrib><vUnTrib>17.4900000000</vUnTrib>"
           "<indTot>1</indTot></prod><imposto><vTotTrib>5.42</vTotTrib><ICMS><ICMSSN102>"
           "<orig>0</orig><CSOSN>102</CSOSN></ICMSSN102></ICMS><PIS><PISNT><CST>07</CST></PISNT>"
           "</PIS><COFINS><COFINSNT><CST>07</CST></COFINSNT></COFINS></imposto></det>";
}

std::string itemsOf(std::string (*item)(int), int count)
{
    std::string items;
    for (int number = 1; number <= count; ++number)
        items += item(number);
    return items;
}

// state: the element of the note's address that the sale's does not have.
std::string issuer(const std::string& state)
{
    return "<emit><CNPJ>63422739000101</CNPJ><xNome>Flor do Ipê Panificação Ltda</xNome>"
           "<xFant>Padaria Flor do Ipê</xFant><enderEmit><xLgr>Avenida Coronel Juvêncio</xLgr>"
           "<nro>1990</nro><xBairro>Centro</xBairro><xMun>Campo Alegre</xMun>" +
           state + "</enderEmit><IE>152947204805</IE></emit>";
}

} // namespace

std::string saleXml(int items)
{
    return "<?xml version=\"1.0\" encoding=\"UTF-8\"?><CFe><infCFe "
           "Id=\"CFe35240163422739000101590009234185487931508973\" versao=\"0.07\"><ide>"
           "<cUF>35</cUF><nserieSAT>000923418</nserieSAT><nCFe>548793</nCFe><dEmi>20240115</dEmi>"
           "<hEmi>143005</hEmi><assinaturaQRCODE>" +
           std::string(344, 'A') + "</assinaturaQRCODE></ide>" + issuer({}) +
           "<dest><CPF>75958329855</CPF></dest>" + itemsOf(saleItem, items) +
           "<total><vCFe>34980.00</vCFe><vCFeLei12741>5420.00</vCFeLei12741></total><pgto>"
           "<MP><cMP>01</cMP><vMP>34980.00</vMP></MP><vTroco>0.00</vTroco></pgto></infCFe>"
           "</CFe>";
}

std::string noteXml(int items)
{
    const std::string key = "35240163422739000101650010005487931931508973";
    return "<?xml version=\"1.0\" encoding=\"UTF-8\"?><nfeProc versao=\"4.00\" "
           "xmlns=\"http://www.portalfiscal.inf.br/nfe\"><NFe><infNFe Id=\"NFe" +
           key +
           "\" versao=\"4.00\"><ide><cUF>35</cUF><serie>1</serie><nNF>548793</nNF>"
           "<dhEmi>2024-01-15T14:30:05-03:00</dhEmi><tpEmis>1</tpEmis><tpAmb>1</tpAmb></ide>" +
           issuer("<UF>SP</UF>") + "<dest><CPF>75958329855</CPF><xNome>Joana Prado</xNome></dest>" +
           itemsOf(noteItem, items) +
           "<total><ICMSTot><vFrete>0.00</vFrete><vSeg>0.00</vSeg><vDesc>0.00</vDesc>"
           "<vOutro>0.00</vOutro><vNF>34630.20</vNF><vTotTrib>5365.80</vTotTrib></ICMSTot></total>"
           "<pag><detPag><tPag>01</tPag><vPag>34630.20</vPag></detPag><vTroco>0.00</vTroco></pag>"
           "</infNFe><infNFeSupl><qrCode>https://www.nfce.fazenda.sp.gov.br/qrcode?p=" +
           key + "|2|1|1|" + std::string(40, 'A') +
           "</qrCode><urlChave>https://www.nfce.fazenda.sp.gov.br/NFCeConsultaPublica</urlChave>"
           "</infNFeSupl></NFe><protNFe versao=\"4.00\"><infProt><dhRecbto>"
           "2024-01-15T14:30:06-03:00</dhRecbto><nProt>135240000548793</nProt></infProt>"
           "</protNFe></nfeProc>";
}
