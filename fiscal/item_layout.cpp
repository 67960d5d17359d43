#include "item_layout.h"

#include "formatters.h"

namespace q7
{
namespace
{

constexpr int wideReceipt = 64;

// The least multiple of width that holds size columns; size itself without a width.
int wholeLines(int size, int width)
{
    return width > 0 ? (size + width - 1) / width * width : size;
}

// The columns right of the description. Quantity and unit need a blank behind them in their columns,
// the amount one before it.
struct NfceColumns {
    int descriptionEnd; // where "Qtde" stands in the header
    int quantity;
    int unit;
    int unitPrice;
    int amount;
};

constexpr NfceColumns wideColumns = {35, 6, 5, 7, 11};
constexpr NfceColumns narrowColumns = {30, 5, 4, 7, 10};

QString paddedField(const QString& field, int column)
{
    return field.size() > column ? field + QLatin1Char(' ') : field.leftJustified(column);
}

// How many decimals there are, -1 without a decimal point.
int decimalsOf(const QString& number)
{
    const int point = number.lastIndexOf(QLatin1Char('.'));
    return point < 0 ? -1 : number.size() - point - 1;
}

QString withoutTrailingZeros(const QString& number, int leastDecimals)
{
    int decimals = decimalsOf(number);
    if (decimals < 0)
        return number;
    int end = number.size();
    for (; decimals > leastDecimals && number.at(end - 1) == QLatin1Char('0'); --decimals)
        --end;
    return number.left(decimals == 0 ? end - 1 : end);
}

QString withDecimalComma(QString number)
{
    return number.replace(QLatin1Char('.'), QLatin1Char(','));
}

QString nfceUnitPrice(const QString& unitPrice)
{
    const QString price = withoutTrailingZeros(unitPrice, 2);
    // The thousands are found by counting from two decimals.
    return decimalsOf(price) == 2 ? formatDecimalBR(price) : withDecimalComma(price);
}

} // namespace

QString cfeItemHeader(int width2)
{
    return width2 == wideReceipt
               ? QStringLiteral("#| COD | DESC | QTD | UN | VL UN R$ | (VL TR R$)* | VL   ITEM R$")
               : QStringLiteral("#| COD | DESC | QTD | UN |VL UN R$|(VL TR R$)|VL ITEM R$");
}

QString cfeItemLine(const CfeItem& item, int width2)
{
    const QLatin1Char blank(' ');
    const QString left = item.number + blank + item.code + blank + item.description + blank +
                         item.quantity + blank + item.unit + QLatin1String(" X ") + item.unitPrice;
    const int end = wholeLines(left.size() + item.amount.size(), width2);
    return left.leftJustified(end - item.amount.size()) + item.amount;
}

QString nfceItemHeader(int options, int width)
{
    // Indexed by what is set: the item number, then the wide code column.
    static constexpr const char* wide[2][2] = {
        {"Codigo  Descricao                  Qtde  UN   Vl Unit   Vl Total",
         "Codigo        Descricao            Qtde  UN   Vl Unit   Vl Total"},
        {"N   Codigo  Descricao              Qtde  UN   Vl Unit   Vl Total",
         "N   Codigo        Descricao        Qtde  UN   Vl Unit   Vl Total"},
    };
    static constexpr const char* narrow[2][2] = {
        {"Codigo  Descricao             Qtde UN  Vl Unit  Vl Total",
         "Codigo        Descricao       Qtde UN  Vl Unit  Vl Total"},
        {"N   Codigo  Descricao         Qtde UN  Vl Unit  Vl Total",
         "N   Codigo        Descricao   Qtde UN  Vl Unit  Vl Total"},
    };
    const int number = (options & ItemNumberColumn) != 0 ? 1 : 0;
    const int wideCode = (options & WideCodeColumn) != 0 ? 1 : 0;
    return QLatin1String((width == wideReceipt ? wide : narrow)[number][wideCode]);
}

QString nfceItemLine(const NfceItem& item, int options, int width)
{
    const NfceColumns& columns = width == wideReceipt ? wideColumns : narrowColumns;
    const QLatin1Char blank(' ');

    QString left;
    if ((options & ItemNumberColumn) != 0)
        left += paddedField(item.number, 4);
    if ((options & WideCodeColumn) != 0)
        left += paddedField(item.gtin.isEmpty() ? QStringLiteral("SEM GTIN") : item.gtin, 14);
    else
        left += paddedField(item.code, 8);
    left += item.description;

    const QString quantity = withDecimalComma(withoutTrailingZeros(item.quantity, 0));
    const QString unitPrice = nfceUnitPrice(item.unitPrice);
    const QString amount = formatDecimalBR(item.amount);
    const bool inColumns = quantity.size() < columns.quantity && item.unit.size() < columns.unit &&
                           unitPrice.size() <= columns.unitPrice && amount.size() < columns.amount;
    const QString right = inColumns
                              ? quantity.leftJustified(columns.quantity) +
                                    item.unit.leftJustified(columns.unit) +
                                    unitPrice.rightJustified(columns.unitPrice) +
                                    amount.rightJustified(columns.amount)
                              : quantity + blank + item.unit + blank + unitPrice + blank + amount;

    if (width <= 0)
        return left + blank + right;
    if (inColumns && left.size() < columns.descriptionEnd)
        return left.leftJustified(columns.descriptionEnd) + right;
    const QString continuation = right.trimmed();
    return left.leftJustified(wholeLines(left.size(), width)) +
           continuation.rightJustified(wholeLines(continuation.size(), width));
}

} // namespace q7
