#include "danfe_6_0.h"

#include "commands.h"
#include "formatters.h"
#include "logo_heading.h"
#include "receipt_text.h"

#include <QStringList>

namespace q7
{
namespace
{

constexpr int qrLevelM = 2;
constexpr int normalFontDots = 12;
constexpr int smallFontDots = 9;
constexpr int lineSpacingDots = 30; // in pages
constexpr int tallestPageDots = 1662;

// The printers without a column count print on 80 mm paper.
int lineDotsOf(const PrinterModel& model)
{
    constexpr int usualLineDots = 576;
    return model.width1 > 0 ? model.width1 * normalFontDots : usualLineDots;
}

// A text that is not broken between its words.
QString unbroken(QString text)
{
    return text.replace(QLatin1Char(' '), QChar::Nbsp);
}

QString inBrazilianForm(const QString& amount)
{
    return formatDecimalBR(amountOf(amount));
}

struct PaymentName {
    int code;
    const char* name;
};

constexpr PaymentName paymentNames[] = {
    {1, "Dinheiro"},
    {2, "Cheque"},
    {3, "Cartão de Crédito"},
    {4, "Cartão de Débito"},
    {5, "Cartão da Loja"},
    {10, "Vale Alimentação"},
    {11, "Vale Refeição"},
    {12, "Vale Presente"},
    {13, "Vale Combustível"},
    {14, "Duplicata Mercantil"},
    {15, "Boleto Bancário"},
    {16, "Depósito Bancário"},
    {17, "PIX"},
    {18, "Transferência Bancária"},
    {19, "Programa de Fidelidade"},
    {20, "PIX"},
    {21, "Crédito em Loja"},
    {22, "Pagamento Eletrônico"},
    {90, "Sem Pagamento"},
    {91, "Pagamento Posterior"},
};

QString paymentName(const NfcePayment& payment)
{
    constexpr int other = 99; // says itself what it is
    const int code = payment.code.toInt();
    if (code == other) {
        const QString description = oneLine(payment.description);
        return description.isEmpty() ? QStringLiteral("Outros") : description;
    }
    for (const PaymentName& known : paymentNames)
        if (known.code == code)
            return QString::fromUtf8(known.name);
    return "Outros (" + oneLine(payment.code) + ')';
}

QString protocolInGroups(QString number)
{
    constexpr int groupedDigits = 15; // newer numbers have 17 and are printed as they are
    if (number.size() == groupedDigits) {
        number.insert(13, QLatin1Char(' '));
        number.insert(3, QLatin1Char(' '));
    }
    return number;
}

QString issuerId(const NfceDocument& note)
{
    if (!note.issuerCnpj.isEmpty())
        return "CNPJ " + formatCnpj(note.issuerCnpj);
    return note.issuerCpf.isEmpty() ? QString() : "CPF " + formatCpf(note.issuerCpf);
}

QString consumerId(const NfceDocument& note)
{
    if (!note.recipientCpf.isEmpty())
        return "CONSUMIDOR CPF: " + note.recipientCpf;
    if (!note.recipientCnpj.isEmpty())
        return "CONSUMIDOR CNPJ: " + note.recipientCnpj;
    if (!note.recipientForeignId.isEmpty())
        return "CONSUMIDOR Id. Estrangeiro: " + oneLine(note.recipientForeignId);
    return "CONSUMIDOR NÃO IDENTIFICADO";
}

// A paragraph of the identification, emphasised up to a character.
struct Paragraph {
    QString text;
    int emphasisedChars;
};

class Danfe6_0
{
public:
    Danfe6_0(PrinterSession& printer, const NfceDocument& note, const QString& qrContent,
             const QrPlacement& qr, DanfeCopy copy, int options)
        : m_printer(printer),
          m_note(note),
          m_qrContent(qrContent.toUtf8()),
          m_qr(qr),
          m_copy(copy),
          m_options(options),
          m_columns(printer.model().width2),
          m_lineDots(lineDotsOf(printer.model())),
          m_codeTable(CMD_CODE_TABLE + argumentByte(printer.model().codeTable))
    {
    }

    void run()
    {
        printHeading();
        if (m_note.isPending()) {
            feed(1);
            printPendingBanner();
        }
        feed(1);
        if (!has(WithoutItems) || m_note.isPending())
            printItems();
        endSection(m_options, m_columns);
        printTotals();
        printPayments();
        printConsultation(m_note);
        printIdentificationAndQrCode();
        printFiscalMessages();
        printTaxesAndRemarks();
    }

private:
    bool has(int option) const { return (m_options & option) != 0; }

    /** Sends a text straight to the printer, without the settings that ImpressaoTexto makes. */
    void sendText(QString text)
    {
        m_printer.sendText(text.replace(QChar::Nbsp, QLatin1Char(' ')).toLatin1());
    }

    /** A centred text in lines of whole words; nothing when it is empty. */
    void printCentred(const QString& text, TextStyle style = SmallFont)
    {
        if (!text.isEmpty())
            printLine(wrapped(text, m_columns), AlignCentre, style);
    }

    /** An amount that ends at the right margin. */
    void printAmount(const QString& label, const QString& amount, TextStyle style = SmallFont)
    {
        printLine(labelAndValueLines(label, amount, m_columns), AlignLeft, style);
    }

    void printHeading();
    void printHeadingBesideLogo(const QString& heading);
    void printPendingBanner();
    void printBarredLine(const QString& text, int columns);
    void sendBar(int columns);
    void printItems();
    void printTotals();
    void printPayments();
    QString shownDate(const QString& dateTime) const;
    std::vector<Paragraph> identification(int columns) const;
    void printIdentificationAndQrCode();
    bool printPage();
    void printParagraphs(const std::vector<Paragraph>& paragraphs, int columns);
    void printQrCode();
    void printFiscalMessages();
    void printTaxesAndRemarks();

    PrinterSession& m_printer;
    const NfceDocument& m_note;
    const QByteArray m_qrContent;
    const QrPlacement m_qr;
    const DanfeCopy m_copy;
    const int m_options;
    const int m_columns; // of every line
    const int m_lineDots;
    const std::string m_codeTable;
};

void Danfe6_0::printHeading()
{
    QString ids = issuerId(m_note);
    if (has(IssuerIe) && !m_note.issuerIe.isEmpty())
        ids += " IE " + m_note.issuerIe;
    QStringList lines = {oneLine(m_note.issuerName), ids.trimmed(), m_note.issuerPlace};
    lines.removeAll(QString());
    const QString heading = lines.join(QLatin1Char('\n'));
    const QString title = m_note.isSimplifiedType2()
                              ? "DANFE Simplificado Tipo 2"
                              : "Documento Auxiliar da Nota Fiscal de Consumidor Eletrônica";
    if (has(HeadingBesideLogo)) {
        printHeadingBesideLogo(heading);
        printCentred(title);
    } else {
        printCentred(heading + '\n' + title);
    }
    printSeparatorIfAsked(m_options, m_columns);
}

// What has no room beside the logo goes below it.
void Danfe6_0::printHeadingBesideLogo(const QString& heading)
{
    constexpr int linesBesideLogo = 8;
    const int columns = qMin(textColumnDots, m_lineDots - pictureColumnDots) / smallFontDots;
    const QStringList lines = wrapped(heading, columns).split(QLatin1Char('\n'));
    m_printer.send(m_codeTable); // which the heading leaves as it finds it
    printLogoHeading(lines.mid(0, linesBesideLogo).join(QLatin1Char('\n')) + '\n',
                     LogoPlace::LeftMargin);
    feed(1);
    printCentred(lines.mid(linesBesideLogo).join(QLatin1Char(' ')));
}

void Danfe6_0::printPendingBanner()
{
    InicializaImpressora();
    DefinePosicao(AlignCentre);
    m_printer.sendAll({CMD_LINE_SPACING_40, m_codeTable, CMD_BOLD_ON});
    printBarredLine(" EMITIDA EM CONTINGÊNCIA ", m_printer.model().width1);
    m_printer.sendAll({CMD_BOLD_OFF, CMD_FONT_B_ON});
    printBarredLine("      Pendente de autorização    ", m_columns);
    InicializaImpressora();
}

// Blanks print in reverse, as black bars on both sides of the text.
void Danfe6_0::printBarredLine(const QString& text, int columns)
{
    const int barColumns = qMax(0, columns - text.size());
    sendBar(barColumns / 2);
    sendText(text);
    sendBar(barColumns - barColumns / 2);
    feed(1);
}

void Danfe6_0::sendBar(int columns)
{
    if (columns > 0)
        m_printer.sendAll({CMD_REVERSE_ON, QByteArray(columns, ' '), CMD_REVERSE_OFF});
}

void Danfe6_0::printItems()
{
    std::vector<NfceItem> items = m_note.items;
    for (NfceItem& item : items)
        for (QString* text : {&item.code, &item.description, &item.unit, &item.gtin})
            *text = oneLine(*text); // a line feed would shift the columns
    printItemTable(items, m_options, m_columns);
}

void Danfe6_0::printTotals()
{
    printItemCount(m_note, m_columns);

    const double discount = amountOf(m_note.discount);
    const double increase =
        amountOf(m_note.freight) + amountOf(m_note.insurance) + amountOf(m_note.otherCharges);
    printAmount("Valor total R$", formatDecimalBR(amountOf(m_note.total) - increase + discount));
    if (increase > 0)
        printAmount("Acréscimos R$", formatDecimalBR(increase));
    if (discount > 0)
        printAmount("Desconto R$", formatDecimalBR(discount));
    if (increase > 0 || discount > 0)
        printAmount("Valor a Pagar R$", inBrazilianForm(m_note.total), SmallEmphasised);

    if (!m_note.isSimplifiedType2())
        return;
    if (m_note.hasConsumptionTaxes) {
        printAmount("(+) CBS R$", inBrazilianForm(m_note.cbs));
        printAmount("(+) IBS R$", inBrazilianForm(m_note.ibs));
    }
    if (amountOf(m_note.selectiveTax) > 0)
        printAmount("(+) IS R$", inBrazilianForm(m_note.selectiveTax));
}

void Danfe6_0::printPayments()
{
    printPaymentHeading(m_columns);
    for (const NfcePayment& payment : m_note.payments)
        printAmount(paymentName(payment), formatDecimalBR(payment.value));
    if (!m_note.change.isEmpty() || m_note.isSimplifiedType2())
        printAmount("Troco R$", inBrazilianForm(m_note.change));
    endSection(m_options, m_columns);
}

// In the time zone of the shop, whatever that of the portal is.
QString Danfe6_0::shownDate(const QString& dateTime) const
{
    return unbroken(formatDateTimeBR(inOffsetOf(dateTime, m_note.issueDateTime)));
}

std::vector<Paragraph> Danfe6_0::identification(int columns) const
{
    const QLatin1Char blank(' ');
    const auto emphasised = [](const QString& text) { return Paragraph{text, text.size()}; };

    std::vector<Paragraph> paragraphs = {emphasised(consumerId(m_note))};
    for (const QString& text : {oneLine(m_note.recipientName), m_note.recipientPlace})
        if (!text.isEmpty())
            paragraphs.push_back({text, 0});

    const char* const numberLabel = m_note.isSimplifiedType2() ? "NF-e No " : "NFC-e No ";
    QString number = unbroken(numberLabel + m_note.number) + blank +
                     unbroken("Série " + m_note.series.rightJustified(3, QLatin1Char('0')));
    QString issue;
    if (!m_note.issueDateTime.isEmpty())
        issue = shownDate(m_note.issueDateTime);
    if (m_note.isPending() && m_copy == DanfeCopy::Establishments) {
        issue += ' ' + unbroken("Via do Estabelecimento");
        if (columns < 1 || issue.size() <= columns)
            issue = unbroken(issue);
    }
    if (!issue.isEmpty())
        number += blank + issue;
    paragraphs.push_back(emphasised(number));

    if (!m_note.protocolNumber.isEmpty()) {
        Paragraph protocol = emphasised("Protocolo de autorização: ");
        protocol.text += unbroken(protocolInGroups(m_note.protocolNumber));
        if (!m_note.authorisationDateTime.isEmpty())
            protocol.text += blank + shownDate(m_note.authorisationDateTime);
        paragraphs.push_back(protocol);
    }
    return paragraphs;
}

void Danfe6_0::printIdentificationAndQrCode()
{
    const bool isBesideText = m_qr.isBesideText && printPage();
    if (!isBesideText) {
        DefinePosicao(AlignCentre);
        printParagraphs(identification(m_columns), m_columns);
    }
    if (m_note.isPending())
        printPendingBanner();
    if (!isBesideText) {
        DefinePosicao(AlignCentre);
        feed(1);
        printQrCode();
        feed(1);
    }
    InicializaImpressora();
}

// The QR code at the left and the text at its right, on a page as high as the taller of the two.
// Prints nothing and returns false when no page is that high.
bool Danfe6_0::printPage()
{
    const int textLeftDots = m_qr.sideDots + 2 * qrQuietZoneDots;
    const int textWidthDots = m_lineDots - textLeftDots;
    const int columns = textWidthDots / smallFontDots;
    const std::vector<Paragraph> paragraphs = identification(columns);
    int lines = 0;
    for (const Paragraph& paragraph : paragraphs)
        lines += static_cast<int>(wrapWords(paragraph.text, columns).size());

    // Most models hang the code from the print position. VOLTA stands it on the line of text there,
    // which leaves its upper edge anywhere within that line's height; SORBE feeds a line first.
    constexpr int standingLineDots = 24;
    const int modelId = m_printer.model().id;
    const bool isStanding = modelId == VoltaModel;
    const int positionDots = qrQuietZoneDots + (isStanding ? m_qr.sideDots : 0);
    const int qrFootDots = qrQuietZoneDots + m_qr.sideDots +
                           (isStanding              ? standingLineDots
                            : modelId == SorbeModel ? lineSpacingDots
                                                    : 0);
    const int pageDots = qMax(qrFootDots + qrQuietZoneDots, (lines + 1) * lineSpacingDots);
    if (pageDots > tallestPageDots)
        return false;

    m_printer.sendAll(
        {CMD_PAGE_MODE, printArea(qrQuietZoneDots, 0, m_qr.sideDots + qrQuietZoneDots, pageDots),
         CMD_CANCEL, CMD_DIRECTION_0, CMD_LINE_SPACING + argumentByte(lineSpacingDots),
         CMD_HORIZONTAL_POSITION + argumentWord(0),
         CMD_VERTICAL_POSITION + argumentWord(positionDots)});
    printQrCode();
    m_printer.sendAll({printArea(textLeftDots, 0, textWidthDots, pageDots),
                       CMD_HORIZONTAL_POSITION + argumentWord(0),
                       CMD_VERTICAL_POSITION + argumentWord(lineSpacingDots)});
    printParagraphs(paragraphs, columns);
    m_printer.send(CMD_FORM_FEED); // prints the page and returns to standard mode
    return true;
}

void Danfe6_0::printParagraphs(const std::vector<Paragraph>& paragraphs, int columns)
{
    m_printer.sendAll({CMD_FONT_B_ON, m_codeTable});
    for (const Paragraph& paragraph : paragraphs) {
        for (const QStringRef& line : wrapWords(paragraph.text, columns)) {
            const int emphasisedChars =
                qBound(0, paragraph.emphasisedChars - line.position(), line.size());
            if (emphasisedChars > 0) {
                m_printer.send(CMD_BOLD_ON);
                sendText(line.left(emphasisedChars).toString());
                m_printer.send(CMD_BOLD_OFF);
            }
            sendText(line.mid(emphasisedChars) + QLatin1Char('\n'));
        }
    }
}

void Danfe6_0::printQrCode()
{
    // The dialect of SORBE announces these lengths without their high byte: the printer would take
    // the text for a shorter one.
    const int announced = m_qrContent.size() + 3;
    if (m_printer.model().id == SorbeModel && announced > 255 && m_qrContent.size() <= 255) {
        constexpr int shareM = 14; // in percent
        m_printer.sendAll({CMD_LF, CMD_QR_BEMA,
                           argumentByte(2 * m_qr.moduleDots) + argumentByte(shareM) +
                               argumentByte(1) + argumentWord(announced),
                           m_qrContent, CMD_LF});
        return;
    }
    ImpressaoQRCode(m_qrContent.constData(), m_qr.moduleDots, qrLevelM);
}

void Danfe6_0::printFiscalMessages()
{
    printCentred(printableLines(m_note.fiscalRemarks));
    printCentred(printableLines(m_note.protocolMessage));
    if (m_note.environmentType == QLatin1String("2"))
        printCentred("EMITIDA EM AMBIENTE DE HOMOLOGAÇÃO - SEM VALOR FISCAL", SmallEmphasised);
}

void Danfe6_0::printTaxesAndRemarks()
{
    if (!m_note.approximateTaxes.isEmpty())
        printCentred("Tributos Totais Incidentes(Lei Federal 12.741/2012): R$" +
                     inBrazilianForm(m_note.approximateTaxes));
    endSection(m_options, m_columns);
    printCentred(printableLines(m_note.taxpayerRemarks));
}

} // namespace

std::optional<QrPlacement> qrPlacementOn(const PrinterModel& model, const QString& qrContent)
{
    return placeQrCode(qrContent.toUtf8(), lineDotsOf(model), model.id != OrlaKModel);
}

void printDanfe6_0(PrinterSession& printer, const NfceDocument& note, const QString& qrContent,
                   const QrPlacement& qr, DanfeCopy copy, int options)
{
    Danfe6_0(printer, note, qrContent, qr, copy, options).run();
}

} // namespace q7
