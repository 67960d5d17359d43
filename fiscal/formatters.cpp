#include "formatters.h"

#include <QDateTime>
#include <cmath>

namespace q7
{

QString formatDateTimeBR(QString dateTime)
{
    for (const char mark : {'T', '-', ':'})
        dateTime.remove(QLatin1Char(mark));
    // AAAAMMDDhhmmss
    QString text = dateTime.mid(6, 2) + dateTime.mid(4, 2) + dateTime.mid(0, 4) +
                   dateTime.mid(8, 2) + dateTime.mid(10, 2) + dateTime.mid(12, 2);
    text.insert(2, QLatin1Char('/'));
    text.insert(5, QLatin1Char('/'));
    text.insert(10, QLatin1Char(' '));
    text.insert(13, QLatin1Char(':'));
    text.insert(16, QLatin1Char(':'));
    return text;
}

QString inOffsetOf(const QString& dateTime, const QString& reference)
{
    const QDateTime time = QDateTime::fromString(dateTime, Qt::ISODate);
    const QDateTime other = QDateTime::fromString(reference, Qt::ISODate);
    const auto hasOffset = [](const QDateTime& date) {
        return date.isValid() && date.timeSpec() != Qt::LocalTime;
    };
    return hasOffset(time) && hasOffset(other)
               ? time.toOffsetFromUtc(other.offsetFromUtc()).toString("yyyy-MM-ddThh:mm:ss")
               : dateTime;
}

QString formatDecimalBR(QString amount)
{
    amount.replace(QLatin1Char('.'), QLatin1Char(','));
    if (amount.size() >= 7)
        amount.insert(amount.size() - 6, QLatin1Char('.'));
    if (amount.size() >= 11)
        amount.insert(amount.size() - 10, QLatin1Char('.'));
    return amount;
}

QString formatDecimalBR(double amount)
{
    return formatDecimalBR(QString::number(amount, 'f', 2));
}

QString formatCpf(QString cpf)
{
    cpf.insert(3, QLatin1Char('.'));
    cpf.insert(7, QLatin1Char('.'));
    cpf.insert(11, QLatin1Char('-'));
    return cpf;
}

QString formatCnpj(QString cnpj)
{
    cnpj.insert(2, QLatin1Char('.'));
    cnpj.insert(6, QLatin1Char('.'));
    cnpj.insert(10, QLatin1Char('/'));
    cnpj.insert(15, QLatin1Char('-'));
    return cnpj;
}

double amountOf(const QString& text)
{
    const double amount = text.toDouble();
    return std::isfinite(amount) ? amount : 0.0; // "nan" and "inf" convert
}

} // namespace q7
