#include "danfe_divisions.h"

#include "item_layout.h"
#include "q7_impressora.h"
#include "receipt_text.h"

namespace q7
{

void printSeparatorIfAsked(int options, int columns)
{
    if ((options & Separators) != 0)
        printSeparator(columns);
}

void endSection(int options, int columns)
{
    printSeparatorIfAsked(options, columns);
    if ((options & Separators) != 0)
        feed(1);
}

void printItemTable(const std::vector<NfceItem>& items, int options, int columns)
{
    printLine(nfceItemHeader(options, columns), AlignLeft, SmallEmphasised);
    printSeparatorIfAsked(options, columns);
    QString lines;
    for (const NfceItem& item : items)
        lines += nfceItemLine(item, options, columns);
    InicializaImpressora();
    printLine(lines, AlignLeft, SmallFont);
}

void printItemCount(const NfceDocument& note, int columns)
{
    const QString count = QString::number(note.items.size());
    printLine(labelAndValue("Qtde. total de itens", count, columns), AlignLeft, SmallFont);
}

void printPaymentHeading(int columns)
{
    printLine(labelAndValue("FORMA DE PAGAMENTO", "VALOR PAGO R$", columns), AlignLeft, SmallFont);
}

void printConsultation(const NfceDocument& note)
{
    print("Consulte pela Chave de Acesso em\n", AlignCentre, Emphasised);
    print(note.consultationBlock + '\n', AlignCentre, SmallFont);
    print(blankAfterEveryFour(note.accessKey), AlignCentre, SmallFont);
    InicializaImpressora();
    feed(1);
}

} // namespace q7
