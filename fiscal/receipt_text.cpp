#include "receipt_text.h"

#include "q7_impressora.h"

#include <QVector>

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

namespace
{

// Where a line that begins at begin ends, when at most columns characters fit.
int lineEnd(const QString& text, int begin, int columns)
{
    const int longest = begin + columns;
    for (int end = longest; end > begin; --end)
        if (text[end] == QLatin1Char(' '))
            return end;
    return longest;
}

} // namespace

std::vector<QStringRef> wrapWords(const QString& text, int columns)
{
    const auto isBlank = [&text](int at) { return text[at] == QLatin1Char(' '); };
    std::vector<QStringRef> lines;
    for (const QStringRef& paragraph : text.splitRef(QLatin1Char('\n'))) {
        int begin = paragraph.position();
        const int paragraphEnd = begin + paragraph.size();
        while (columns > 0 && paragraphEnd - begin > columns) {
            const int next = lineEnd(text, begin, columns);
            int end = next;
            while (end > begin && isBlank(end - 1))
                --end;
            lines.emplace_back(&text, begin, end - begin);
            for (begin = next; begin < paragraphEnd && isBlank(begin);)
                ++begin;
        }
        lines.emplace_back(&text, begin, paragraphEnd - begin);
    }
    return lines;
}

QString wrapped(const QString& text, int columns)
{
    QString lines;
    for (const QStringRef& line : wrapWords(text, columns))
        lines += line + QLatin1Char('\n');
    lines.chop(1);
    return lines.replace(QChar::Nbsp, QLatin1Char(' '));
}

QString printableLines(QString text)
{
    text.replace(QLatin1String("\r\n"), QLatin1String("\n")).replace('\r', '\n');
    for (QChar& character : text)
        if (character.category() == QChar::Other_Control && character != QLatin1Char('\n'))
            character = QLatin1Char(' ');
    return text.trimmed();
}

QString oneLine(const QString& text)
{
    return printableLines(text).simplified();
}

QString labelAndValueLines(const QString& label, const QString& value, int columns)
{
    QString lines = wrapped(label, columns);
    const int lastLineChars = lines.size() - lines.lastIndexOf(QLatin1Char('\n')) - 1;
    if (columns > 0 && lastLineChars + 1 + value.size() > columns)
        return lines + QLatin1Char('\n') + value.rightJustified(columns);
    return labelAndValue(lines, value, columns + lines.size() - lastLineChars);
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
