// What fiscal receipts have in common: lines set to the receipt's width, and printing them.
#pragma once

#include <QString>
#include <vector>

namespace q7
{

/** Arguments of ImpressaoTexto. */
enum TextAlignment : int { AlignLeft = 0, AlignCentre = 1 };
enum TextStyle : int { NormalFont = 0, SmallFont = 1, Emphasised = 8, SmallEmphasised = 9 };

// Printing goes through the exports, as an application's calls: they log each text and their
// results are not looked at.

void print(const QString& text, TextAlignment alignment, TextStyle style);

/** ESC/POS: LF. lines: from 1. */
void feed(int lines);

/** Prints and feeds. */
void printLine(const QString& text, TextAlignment alignment, TextStyle style, int feedLines = 1);

/** Prints "-" across columns; nothing but the text's settings when columns is below 1. No line feed
 *  follows: a full line prints by itself, and what is left over goes with the next text's reset. */
void printSeparator(int columns);

/** A label at the left and a value at the right margin of a line of columns; one directly behind the
 *  other when there is no room. */
QString labelAndValue(const QString& label, const QString& value, int columns);

/** The lines of a text, broken at its line feeds and between words where it is longer than columns;
 *  within a word that is longer itself. Not broken at U+00A0, nor at all when columns is below 1.
 *  The lines refer to the text, which must outlive them. */
std::vector<QStringRef> wrapWords(const QString& text, int columns);

/** The text with line feeds where wrapWords() breaks it. */
QString wrapped(const QString& text, int columns);

/** A text of one line: what is no character to print, line ends among them, and runs of blanks
 *  become one blank. */
QString oneLine(const QString& text);

/** A text that keeps its line ends, as line feeds; other characters that do not print are blanks. */
QString printableLines(QString text);

/** labelAndValue() over as many lines as it takes, so that the value ends at the right margin
 *  however long the label is. */
QString labelAndValueLines(const QString& label, const QString& value, int columns);

/** A blank before every group of four characters after the first: "1234 5678 9". */
QString groupsOfFour(const QString& key);

/** A blank behind every group of four characters, the last one too when it is whole: "1234 5678 9",
 *  "1234 5678 ". */
QString blankAfterEveryFour(const QString& key);

} // namespace q7
