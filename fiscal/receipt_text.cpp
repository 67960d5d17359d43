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
    QString text = blankAfterEveryFour(key);
    if (!key.isEmpty() && key.size() % 4 == 0)
        text.chop(1);
    return text;
}

QString blankAfterEveryFour(const QString& key)
{
    QString text;
    text.reserve(key.size() + key.size() / 4);
    for (int i = 0; i < key.size(); ++i) {
        text += key.at(i);
        if (i % 4 == 3)
            text += QLatin1Char(' ');
    }
    return text;
}

} // namespace q7
