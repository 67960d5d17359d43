#include "documents.h"

namespace
{

std::string saleItem(int number)
{
    const std::string text = std::to_string(number);
    return "<det nItem=\"" + text + "\"><prod><cProd>" + std::to_string(7000 + number) +
           "</cProd><xProd>CAFÉ TORRADO E MOÍDO 500G LOTE " + text +
           "</xProd><NCM>09012100</NCM><CFOP>5102</CFOP><uCom>UN</uCom><qCom>2.0000</qCom>"
           "<vUnCom>17.49</vUnCom><vProd>34.98</vProd><indRegra>A</indRegra><vItem>34.98</vItem>"
           "</prod><imposto><vItem12741>5.42</vItem12741><ICMS><ICMS00><Orig>0</Orig><CST>00</CST>"
           "<pICMS>18.00</pICMS><vICMS>3.14</vICMS></ICMS00></ICMS></imposto></det>";
}

} // namespace

std::string saleXml(int items)
{
    std::string xml =
        "<?xml version=\"1.0\" encoding=\"UTF-8\"?><CFe><infCFe "
        "Id=\"CFe35240163422739000101590009234185487931508973\" versao=\"0.07\"><ide><cUF>35</cUF>"
        "<nserieSAT>000923418</nserieSAT><nCFe>548793</nCFe><dEmi>20240115</dEmi>"
        "<hEmi>143005</hEmi><assinaturaQRCODE>" +
        std::string(344, 'A') +
        "</assinaturaQRCODE></ide><emit><CNPJ>63422739000101</CNPJ><xNome>Flor do Ipê Panificação "
        "Ltda</xNome><xFant>Padaria Flor do Ipê</xFant><enderEmit><xLgr>Avenida Coronel "
        "Juvêncio</xLgr><nro>1990</nro><xBairro>Centro</xBairro><xMun>Campo Alegre</xMun>"
        "</enderEmit><IE>152947204805</IE></emit><dest><CPF>75958329855</CPF></dest>";
    for (int number = 1; number <= items; ++number)
        xml += saleItem(number);
    return xml + "<total><vCFe>34980.00</vCFe><vCFeLei12741>5420.00</vCFeLei12741></total><pgto>"
                 "<MP><cMP>01</cMP><vMP>34980.00</vMP></MP><vTroco>0.00</vTroco></pgto></infCFe>"
                 "</CFe>";
}
