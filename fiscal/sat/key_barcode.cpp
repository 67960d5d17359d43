#include "key_barcode.h"

#include "barcode_data.h"
#include "commands.h"
#include "fiscal_settings.h"
#include "printer_session.h"
#include "receipt_text.h"

#include <algorithm>

namespace q7
{
namespace
{

constexpr int heightDots = 50;
constexpr int moduleDots = 2;
constexpr int narrowModuleDots = 1; // with letters, the line has no room for more
constexpr int textPosition = 4;     // passed on to the printer, which prints no text for it

bool isDigit(QChar character)
{
    return character >= QLatin1Char('0') && character <= QLatin1Char('9');
}

bool hasLetters(const QString& key)
{
    return !std::all_of(key.begin(), key.end(), isDigit);
}

void printByExport(const QString& key, int module)
{
    ImpressaoCodigoBarras(Code128, ("{C" + key).toUtf8().constData(), heightDots, module,
                          textPosition);
}

// The export takes its data to the first zero byte, which a pair of zeros is.
void printInSubsets(PrinterSession& printer, const QString& key)
{
    const std::string data = keyInSubsets(key);
    printer.sendAll({CMD_BARCODE_HEIGHT + argumentByte(heightDots),
                     CMD_BARCODE_WIDTH + argumentByte(narrowModuleDots),
                     printer.model().id == DunelModel
                         ? std::string(CMD_HRI_NONE)
                         : CMD_BARCODE_HRI + argumentByte(textPosition),
                     CMD_BARCODE + argumentByte(Code128 + firstLengthPrefixedType) +
                         argumentByte(static_cast<int>(data.size())) + data});
}

} // namespace

std::string keyInSubsets(const QString& key)
{
    const auto addPairs = [&key](std::string& data, int begin, int end) {
        data += "{C";
        for (; begin < end; begin += 2)
            data += static_cast<char>(key.midRef(begin, 2).toInt());
    };
    const auto letter = std::find_if_not(key.begin(), key.end(), isDigit);
    const auto behindLetters = std::find_if_not(key.rbegin(), key.rend(), isDigit).base();
    // Whole pairs on both sides.
    const int begin = static_cast<int>(letter - key.begin()) / 2 * 2;
    const int lastPairs = static_cast<int>(key.end() - behindLetters) / 2 * 2;
    const int end = key.size() - lastPairs;

    std::string data;
    if (begin > 0)
        addPairs(data, 0, begin);
    data += "{A" + key.mid(begin, end - begin).toStdString();
    if (end < key.size())
        addPairs(data, end, key.size());
    return data;
}

void printKeyBarcode(const QString& key)
{
    PrinterSession& printer = session();
    if (fiscalLayout() == FiscalLayout::Original || !hasLetters(key))
        printByExport(key, moduleDots);
    else if (printer.model().id == SorbeModel) // chooses the subsets itself
        printByExport(key, narrowModuleDots);
    else
        printInSubsets(printer, key);
    feed(1);
}

} // namespace q7
