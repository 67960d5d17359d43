#include "receipt_text.h"

#include "q7_impressora.h"

namespace q7
{

void print(const QString& text, TextAlignment alignment, TextStyle style)
{
    ImpressaoTexto(text.toUtf8().constData(), alignment, style, 0);
}

void feed(int lines)
{
    AvancaPapel(lines);
}

void printLine(const QString& text, TextAlignment alignment, TextStyle style, int feedLines)
{
    print(text, alignment, style);
    feed(feedLines);
}

void printSeparator(int columns)
{
    print(QString(qMax(0, columns), QLatin1Char('-')), AlignLeft, NormalFont);
}

QString labelAndValue(const QString& label, const QString& value, int columns)
{
    return label.leftJustified(columns - value.size()) + value;
}

QString groupsOfFour(const QString& key)
{
    QString text = key;
    for (int i = 4; i < text.size(); i += 5)
        text.insert(i, QLatin1Char(' '));
    return text;
}

QString blankAfterEveryFour(QString key)
{
    for (int i = 4; i <= key.size(); i += 5)
        key.insert(i, QLatin1Char(' '));
    return key;
}

} // namespace q7
