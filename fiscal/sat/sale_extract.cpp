// ImprimeXMLSAT: the extract of a SAT CF-e sale.

#include "cfe_sale_document.h"
#include "export_frame.h"
#include "formatters.h"
#include "item_layout.h"
#include "sat_extract.h"

using namespace q7;

namespace
{

// Bits of param, beside headingBesideLogo.
constexpr int withoutItems = 2;
constexpr int testNotice = 4;

// From this character on the heading is printed once more, in full width.
constexpr int headingChars = 156;
// The line of the taxes does not follow the model's width.
constexpr int taxLineColumns = 64;

void printIssuerAndTitle(const PrinterSession& printer, const CfeSaleDocument& sale, int options)
{
    const QString heading = sale.tradeName + '\n' + sale.companyName + '\n' + sale.address;
    printHeading(heading, options);
    if (heading.size() > headingChars)
        printLine(heading.mid(headingChars), AlignLeft, SmallFont);
    printIssuerIds(printer, sale.issuerCnpj, sale.issuerIe, sale.issuerIm);

    printLine("Extrato No. " + sale.cfeNumber, AlignCentre, Emphasised);
    printLine("CUPOM FISCAL ELETRÔNICO - SAT", AlignCentre, Emphasised);
    if ((options & testNotice) != 0) {
        const QString mark = QString(48, '>') + '\n';
        print("=TESTE=\n" + mark + mark + mark, AlignCentre, Emphasised);
    }
    printSatSeparator(printer);
}

void printConsumer(const PrinterSession& printer, const CfeSaleDocument& sale)
{
    printLine(consumerLine(sale.consumerId), AlignLeft, SmallFont);
    if (!sale.consumerName.isEmpty())
        printLine("Razão Social/Nome: " + sale.consumerName, AlignLeft, SmallFont);
    printSatSeparator(printer);
}

void printItems(const PrinterSession& printer, const CfeSaleDocument& sale)
{
    const PrinterModel& model = printer.model();
    printLine(cfeItemHeader(model.width2), AlignCentre, SmallFont);
    printSatSeparator(printer);
    QString lines;
    for (const CfeItem& item : sale.items)
        lines += cfeItemLine(item, model.width2);
    print(lines, AlignLeft, SmallFont);
}

void printTotals(const PrinterSession& printer, const CfeSaleDocument& sale)
{
    const int columns = printer.model().width2;
    printLine(labelAndValue("TOTAL R$", sale.total, columns), AlignLeft, SmallFont);
    for (const Payment& payment : sale.payments)
        printLine(labelAndValue(payment.name, formatDecimalBR(payment.value), columns), AlignLeft,
                  SmallFont);
    printLine(labelAndValue("Troco R$", sale.change, columns), AlignCentre, SmallFont);
}

void printRemarks(const PrinterSession& printer, const CfeSaleDocument& sale)
{
    if (!sale.fiscoText.isEmpty())
        print(sale.fiscoText, AlignLeft, SmallFont);
    feed(1);
    printSatSeparator(printer);

    if (!sale.deliveryText.isEmpty()) {
        printLine("DADOS PARA ENTREGA", AlignLeft, NormalFont);
        printLine(sale.deliveryText, AlignLeft, SmallFont);
        printSatSeparator(printer);
    }

    printLine("OBSERVAÇÕES DO CONTRIBUINTE", AlignLeft, SmallFont);
    if (!sale.complementaryInfo.isEmpty())
        printLine(sale.complementaryInfo, AlignLeft, SmallFont);
}

void printTaxes(const PrinterSession& printer, const CfeSaleDocument& sale)
{
    print("*Valor aproximado dos tributos do item\n", AlignLeft, SmallFont);
    print(labelAndValue("Valor aproximando dos tributos deste cupom R$", sale.taxTotal12741,
                        taxLineColumns) +
              "(conforme Lei Fed. 12.741/2012)\n",
          AlignLeft, SmallFont);
    printSatSeparator(printer);
}

void printSatUnitAndKey(const PrinterSession& printer, const CfeSaleDocument& sale)
{
    const QString satUnit = satUnitLine(sale.satSerial);
    printLine(satUnit, AlignCentre, NormalFont);
    printLine(formatDateTimeBR(sale.emission), AlignCentre, NormalFont);
    // SORBE's receipts have always shown the SAT unit again in the place of the key.
    printLine(printer.model().id == SorbeModel ? satUnit : groupsOfFour(sale.accessKey),
              AlignCentre, SmallEmphasised);
    printKeyBarcode(sale.accessKey);
    printConsultationQrCode(sale.accessKey, sale.emission, sale.total, sale.consumerId,
                            sale.qrSignature);
    feed(1);
    printLine("Consulte o QR Code pelo aplicativo De olho na nota, disponível na AppStore (Apple) "
              "e PlayStore (Android)",
              AlignCentre, SmallEmphasised);
}

void printSaleExtract(const PrinterSession& printer, const CfeSaleDocument& sale, int options)
{
    InicializaImpressora();
    printIssuerAndTitle(printer, sale, options);
    printConsumer(printer, sale);
    if ((options & withoutItems) == 0)
        printItems(printer, sale);
    feed(2);
    printTotals(printer, sale);
    printRemarks(printer, sale);
    feed(1);
    printTaxes(printer, sale);
    printSatUnitAndKey(printer, sale);
}

} // namespace

int Q7_CALL ImprimeXMLSAT(const char* dados, int param)
{
    const char* xml = textOrEmpty(dados);
    return runCommand({"ImprimeXMLSAT"}, std::tie(xml), [&](PrinterSession& printer) {
        chooseSeparatorWidth(printer);
        printSaleExtract(printer, CfeSaleDocument(xml), param);
        return logged(Q7_OK);
    });
}
