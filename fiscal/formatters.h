// The Brazilian forms of what fiscal documents hold.
#pragma once

#include <QString>

namespace q7
{

/** DD/MM/AAAA hh:mm:ss of "2019-05-20T10:30:45-03:00" or "20190520103045"; a time zone is ignored. A
 *  shorter text keeps the separators, with blanks where they would stand beyond its end. */
QString formatDateTimeBR(QString dateTime);

/** The same date in the offset from UTC of another: of "2024-03-14T21:42:09+00:00" and a reference in
 *  "-03:00" that is "2024-03-14T18:42:09". Unchanged where one of the two has no offset. */
QString inOffsetOf(const QString& dateTime, const QString& reference);

/** "1.234,56" of "1234.56". Counts on exactly two decimals, and makes at most two thousands
 *  separators: "1234567890.00" gives "1234.567.890,00". */
QString formatDecimalBR(QString amount);

/** "1.234,50" of 1234.5. */
QString formatDecimalBR(double amount);

/** NNN.NNN.NNN-NN. The length is not checked: a shorter text is filled up with blanks. */
QString formatCpf(QString cpf);

/** NN.NNN.NNN/NNNN-NN. The length is not checked: a shorter text is filled up with blanks. */
QString formatCnpj(QString cnpj);

/** The number that an amount field holds, with a decimal point; 0 when it is none. */
double amountOf(const QString& text);

} // namespace q7
