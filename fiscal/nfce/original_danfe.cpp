#include "original_danfe.h"

#include "commands.h"
#include "formatters.h"
#include "logo_heading.h"
#include "receipt_text.h"

#include <QStringList>

namespace q7
{
namespace
{

constexpr int qrModuleDots = 4;
constexpr int qrLevelL = 1;
constexpr int qrLevelM = 2;

/** The lines beside the QR code. They are taken by number from one text split at "|", so that a "|"
 *  inside a name moves everything behind it on by a line. */
enum IdentificationLine {
    ConsumerLine,
    ConsumerNameLine,
    ConsumerAddressLine,
    NumberLine,
    SeriesLine,
    IssueLine,
    ProtocolLine,
    AuthorisationLine,
};

QString consumerText(const NfceDocument& note)
{
    // A foreign identifier has never been printed: its consumer counts as not identified.
    QString id = " NÃO IDENTIFICADO";
    if (!note.recipientCpf.isEmpty())
        id = " - CPF: " + note.recipientCpf;
    else if (!note.recipientCnpj.isEmpty())
        id = " - CNPJ: " + note.recipientCnpj;
    return "CONSUMIDOR" + id;
}

QString withDash(const QString& text)
{
    return text.isEmpty() ? QString() : " - " + text;
}

QStringList identificationLines(const NfceDocument& note)
{
    const QLatin1Char bar('|');
    return QStringList{consumerText(note),
                       withDash(note.recipientName),
                       withDash(note.recipientAddress),
                       "NFC-e No " + note.number,
                       "Série " + note.series.rightJustified(3, QLatin1Char('0')),
                       note.issueDateTime,
                       note.protocolNumber,
                       note.authorisationDateTime}
        .join(bar)
        .split(bar);
}

class OriginalDanfe
{
public:
    OriginalDanfe(PrinterSession& printer, const NfceDocument& note, const QString& qrContent,
                  Emission emission, int options)
        : m_printer(printer),
          m_note(note),
          m_qrContent(qrContent),
          m_emission(emission),
          m_options(options),
          m_columns(printer.model().width2),
          m_codeTable(CMD_CODE_TABLE + argumentByte(printer.model().codeTable))
    {
    }

    void run()
    {
        printHeading();
        if (m_emission == Emission::Contingency)
            printContingencyBanner();
        feed(1);
        if (!has(WithoutItems))
            printItemTable(m_note.items, m_options, m_columns);
        endSection(m_options, m_columns);
        printTotals();
        printPayments();
        if (has(HomologationNotice))
            printLine("EMITIDA EM AMBIENTE DE HOMOLOGAÇÃO\nSEM VALOR FISCAL", AlignCentre,
                      Emphasised);
        printConsultation(m_note);
        printIdentificationAndQrCode();
        printTaxesAndRemarks();
    }

private:
    bool has(int option) const { return (m_options & option) != 0; }

    /** Sends a text straight to the printer, without the settings that ImpressaoTexto makes. */
    void sendText(const QString& text) { m_printer.sendText(text.toLatin1()); }

    void printHeading();
    void printContingencyBanner();
    void printTotals();
    void printPayments();
    void printIdentificationAndQrCode();
    void printQrCodeAtTheLeft();
    void printIdentification(const QStringList& lines, bool isBesideQrCode);
    void printAuthorisation(const QStringList& lines);
    void printCopyAndContingency();
    void printTaxesAndRemarks();

    PrinterSession& m_printer;
    const NfceDocument& m_note;
    const QString& m_qrContent;
    const Emission m_emission;
    const int m_options;
    const int m_columns; // of every line
    const std::string m_codeTable;
};

void OriginalDanfe::printHeading()
{
    QString heading = m_note.issuerName + '\n' + m_note.issuerCnpjLine;
    if (has(IssuerIe))
        heading += " IE " + m_note.issuerIe;
    heading += '\n' + m_note.issuerAddress + '\n';
    const QString title = "Documento Auxiliar da Nota Fiscal de Consumidor Eletrônica";
    if (has(HeadingBesideLogo)) {
        printLogoHeading(heading, LogoPlace::LeftMargin);
        feed(1);
        printLine(title, AlignCentre, SmallFont);
    } else {
        printLine(heading + title, AlignCentre, SmallFont);
    }
    printSeparatorIfAsked(m_options, m_columns);
}

// The blanks print in reverse, as black bars around the two texts. Reverse printing is still on at
// the end: the reset of the next text ends it, where texts reset (not once a line spacing is stored).
void OriginalDanfe::printContingencyBanner()
{
    feed(2);
    InicializaImpressora();
    DefinePosicao(AlignCentre);
    m_printer.sendAll({CMD_LINE_SPACING_40, m_codeTable, CMD_REVERSE_ON, QByteArray(11, ' '),
                       CMD_REVERSE_OFF, CMD_BOLD_ON});
    sendText(" EMITIDA EM CONTINGÊNCIA ");
    m_printer.sendAll({CMD_BOLD_OFF, CMD_REVERSE_ON, QByteArray(12, ' ')});
    feed(1);
    m_printer.sendAll({CMD_FONT_B_ON, QByteArray(15, ' '), CMD_REVERSE_OFF});
    sendText("      Pendente de autorização    ");
    m_printer.sendAll({CMD_REVERSE_ON, QByteArray(16, ' '), CMD_MODE_RESET});
    feed(1);
}

void OriginalDanfe::printTotals()
{
    printItemCount(m_note, m_columns);

    const double discount = amountOf(m_note.discount);
    const double increase =
        amountOf(m_note.freight) + amountOf(m_note.insurance) + amountOf(m_note.otherCharges);
    if (increase > 0 || discount > 0) {
        // With a decimal point, unlike all other amounts.
        const double gross = amountOf(m_note.total) - increase + discount;
        printLine(labelAndValue("Valor total R$", QString::number(gross, 'f', 2), m_columns),
                  AlignLeft, SmallFont);
    }
    // One column short of the right margin.
    if (increase > 0)
        printLine(labelAndValue("Acréscimos R$", formatDecimalBR(increase), m_columns - 1),
                  AlignLeft, SmallFont);
    if (discount > 0)
        printLine(labelAndValue("Desconto R$", formatDecimalBR(discount), m_columns), AlignLeft,
                  SmallFont);
    printLine(labelAndValue("Valor a Pagar R$:", formatDecimalBR(m_note.total), m_columns),
              AlignLeft, SmallEmphasised);
}

void OriginalDanfe::printPayments()
{
    printPaymentHeading(m_columns);
    m_printer.send(m_codeTable);
    for (const Payment& payment : m_note.payments)
        printLine(labelAndValue(payment.name, formatDecimalBR(payment.value), m_columns), AlignLeft,
                  SmallFont);
    if (!m_note.change.isEmpty())
        print(labelAndValue("Troco R$", formatDecimalBR(m_note.change), m_columns), AlignLeft,
              SmallFont);
    feed(1);
    endSection(m_options, m_columns);
}

void OriginalDanfe::printIdentificationAndQrCode()
{
    constexpr int longestBesideChars = 119;
    const QStringList lines = identificationLines(m_note);
    const bool isBesideQrCode =
        lines[ConsumerLine].size() <= longestBesideChars && m_printer.model().id != OrlaKModel;
    if (isBesideQrCode)
        printQrCodeAtTheLeft();
    else
        DefinePosicao(AlignCentre);
    printIdentification(lines, isBesideQrCode);
    if (m_emission == Emission::Normal)
        printAuthorisation(lines);
    else
        printCopyAndContingency();

    if (isBesideQrCode) {
        m_printer.send(CMD_FORM_FEED); // prints the page and returns to standard mode
        return;
    }
    feed(1);
    ImpressaoQRCode(m_qrContent.toUtf8().constData(), qrModuleDots, qrLevelL);
    feed(1);
}

// Opens page mode, places the QR code and leaves the area to its right for the text.
void OriginalDanfe::printQrCodeAtTheLeft()
{
    constexpr int textTopDots = 50;
    const int contentSize = m_qrContent.size();
    const int areaHeightDots = 256 + contentSize % 256; // the text's size is the low byte
    const PrinterModel& model = m_printer.model();
    const int offsetLow = model.id == VoltaModel ? contentSize - 25 : model.qrOffsetLow;

    m_printer.sendAll(
        {CMD_PAGE_MODE, printArea(0, 0, pictureColumnDots, areaHeightDots), CMD_CANCEL,
         CMD_DIRECTION_0, CMD_HORIZONTAL_POSITION + argumentWord(0),
         CMD_VERTICAL_POSITION + argumentByte(offsetLow) + argumentByte(model.qrOffsetHigh)});
    ImpressaoQRCode(m_qrContent.toUtf8().constData(), qrModuleDots, qrLevelM);
    m_printer.sendAll({printArea(pictureColumnDots, 0, textColumnDots, areaHeightDots),
                       CMD_HORIZONTAL_POSITION + argumentWord(0),
                       CMD_VERTICAL_POSITION + argumentWord(textTopDots)});
}

void OriginalDanfe::printIdentification(const QStringList& lines, bool isBesideQrCode)
{
    constexpr int shortLineChars = 40;
    m_printer.sendAll({CMD_FONT_B_ON, CMD_BOLD_ON, m_codeTable});
    sendText(lines[ConsumerLine]);
    if (lines[ConsumerLine].size() < shortLineChars)
        m_printer.send("\n");
    m_printer.send(CMD_BOLD_OFF);
    for (const IdentificationLine line : {ConsumerNameLine, ConsumerAddressLine})
        if (!lines[line].isEmpty())
            sendText(lines[line]);
    m_printer.send(CMD_BOLD_ON);
    sendText('\n' + lines[NumberLine]);
    sendText(' ' + lines[SeriesLine]);
    sendText((isBesideQrCode ? '\n' : ' ') + formatDateTimeBR(lines[IssueLine]));
}

void OriginalDanfe::printAuthorisation(const QStringList& lines)
{
    QString protocol = lines[ProtocolLine];
    protocol.insert(3, QLatin1Char(' '));
    protocol.insert(14, QLatin1Char(' '));
    sendText("\nProtocolo de aut.: ");
    m_printer.send(CMD_BOLD_OFF);
    sendText(protocol);
    m_printer.send(CMD_BOLD_ON);
    sendText("\nData de aut.: ");
    m_printer.send(CMD_BOLD_OFF);
    sendText(formatDateTimeBR(lines[AuthorisationLine]));
}

void OriginalDanfe::printCopyAndContingency()
{
    bool& isEstablishments = m_printer.nextCopyIsEstablishments;
    sendText(isEstablishments ? " Via estabelecimento" : " Via consumidor\n");
    isEstablishments = !isEstablishments;
    m_printer.sendAll({m_codeTable, CMD_MODE_RESET, CMD_BOLD_ON});
    sendText("EMITIDA EM CONTINGÊNCIA ");
    m_printer.send(CMD_BOLD_OFF);
    feed(1);
    m_printer.send(CMD_FONT_B_ON);
    sendText("Pendente de autorização");
    m_printer.send(CMD_MODE_RESET);
    feed(1);
}

void OriginalDanfe::printTaxesAndRemarks()
{
    InicializaImpressora();
    DefinePosicao(AlignCentre);
    m_printer.send(CMD_FONT_B_ON);
    sendText("Tributos Totais Incidentes(Lei Federal 12.741/2012): R$" + m_note.approximateTaxes);
    feed(1);
    InicializaImpressora();
    endSection(m_options, m_columns);
    if (!m_note.taxpayerRemarks.isEmpty())
        printLine(m_note.taxpayerRemarks, AlignCentre, SmallFont);
}

} // namespace

void printOriginalDanfe(PrinterSession& printer, const NfceDocument& note, const QString& qrContent,
                        Emission emission, int options)
{
    OriginalDanfe(printer, note, qrContent, emission, options).run();
}

} // namespace q7
