#include "symbols.h"

#include "phrases.h"

#include <zint.h>

#include <algorithm>
#include <memory>
#include <optional>

namespace virtual_printer
{
namespace
{

struct ZintDelete {
    void operator()(zint_symbol* symbol) const { ZBarcode_Delete(symbol); }
};
using ZintSymbol = std::unique_ptr<zint_symbol, ZintDelete>;

struct Barcode {
    std::string_view name;
    int symbology;
    bool twoLevels; // bars are narrow or wide, in the printer's own ratio
};

constexpr Barcode barcodes[] = {
    {"UPC-A", BARCODE_UPCA, false},     {"UPC-E", BARCODE_UPCE, false},
    {"EAN-13", BARCODE_EANX, false},    {"EAN-8", BARCODE_EANX, false},
    {"CODE39", BARCODE_CODE39, true},   {"ITF", BARCODE_C25INTER, true},
    {"CODABAR", BARCODE_CODABAR, true}, {"CODE93", BARCODE_CODE93, false},
    {"CODE128", BARCODE_CODE128, false}};
constexpr unsigned upcE = 1;
constexpr unsigned ean8 = 3;
constexpr unsigned code39 = 4;
constexpr unsigned code128 = 8;

/** Index into barcodes, from the short (0) or the long (65) form of the command. */
std::optional<unsigned> indexOf(unsigned symbology)
{
    const unsigned index = symbology >= 65 ? symbology - 65 : symbology;
    const bool known = symbology >= 65 ? index <= code128 : index <= 6;
    return known ? std::optional<unsigned>(index) : std::nullopt;
}

Symbol problem(Message text)
{
    Symbol symbol;
    symbol.problem = std::move(text);
    return symbol;
}

Symbol tooWide(int width, int longest)
{
    return problem({phrases::tooWide, {std::to_string(width), std::to_string(longest)}});
}

bool moduleAt(const zint_symbol& symbol, int row, int column)
{
    return (symbol.encoded_data[row][column / 8] >> (column % 8) & 1) != 0;
}

ZintSymbol encode(int symbology, std::string_view data, int level, Message& error)
{
    ZintSymbol symbol(ZBarcode_Create());
    symbol->symbology = symbology;
    symbol->input_mode = DATA_MODE;
    symbol->option_1 = level;
    const auto* bytes = reinterpret_cast<const unsigned char*>(data.data());
    const int result = data.empty()
                           ? ZINT_ERROR_INVALID_DATA
                           : ZBarcode_Encode(symbol.get(), bytes, static_cast<int>(data.size()));
    if (result >= ZINT_ERROR) {
        error = data.empty() ? Message(phrases::noData)
                             : Message(phrases::cannotBeEncoded, {std::string(symbol->errtxt)});
        return nullptr;
    }
    return symbol;
}

/** The eight digits of UPC-E hold a UPC-A number whose zeros stand where this takes them out. */
std::optional<std::string> zeroSuppressed(std::string_view number)
{
    const std::string_view maker = number.substr(1, 5);
    const std::string_view item = number.substr(6, 5);
    const std::string m(maker);
    if (maker[2] <= '2' && maker.substr(3) == "00" && item.substr(0, 2) == "00") {
        return m.substr(0, 2) + std::string(item.substr(2)) + maker[2];
    }
    if (maker.substr(3) == "00" && item.substr(0, 3) == "000") {
        return m.substr(0, 3) + std::string(item.substr(3)) + "3";
    }
    if (maker[4] == '0' && item.substr(0, 4) == "0000") {
        return m.substr(0, 4) + item[4] + "4";
    }
    if (item.substr(0, 4) == "0000" && item[4] >= '5') {
        return m + item[4];
    }
    return std::nullopt;
}

bool isDigits(std::string_view text)
{
    return std::all_of(text.begin(), text.end(), [](char c) { return c >= '0' && c <= '9'; });
}

/** Data of a Code 128 command as plain characters. */
struct Code128Data {
    std::string characters;
    bool usesC = false;
    Message problem;
};

Code128Data readCode128(std::string_view data)
{
    Code128Data read;
    char set = 0;
    for (std::size_t at = 0; at < data.size(); ++at) {
        const char c = data[at];
        if (c == '{' && at + 1 < data.size()) {
            const char selector = data[++at];
            if (selector >= 'A' && selector <= 'C') {
                set = selector;
                continue;
            }
            if (selector != '{' || set == 0 || set == 'C') {
                read.problem = phrases::codeNotDrawn;
                return read;
            }
        } else if (set == 0) {
            read.problem = phrases::noSetSelector;
            return read;
        }
        if (set == 'C') {
            const auto pair = static_cast<unsigned char>(c);
            if (pair > 99) {
                read.problem = phrases::pairAbove99;
                return read;
            }
            read.characters += static_cast<char>('0' + pair / 10);
            read.characters += static_cast<char>('0' + pair % 10);
            read.usesC = true;
        } else {
            read.characters += c;
        }
    }
    return read;
}

/** Width in dots of a run of equal modules. */
int runDots(int modules, int moduleDots, bool twoLevels)
{
    if (!twoLevels) {
        return modules * moduleDots;
    }
    return modules == 1 ? moduleDots : (moduleDots * 5 + 1) / 2; // wide is 2.5 narrow, rounded up
}

Symbol barsOf(const zint_symbol& symbol, bool twoLevels, int moduleDots, int heightDots,
              int longest)
{
    struct Bar {
        int x;
        int width;
    };
    std::vector<Bar> bars;
    int x = 0;
    for (int from = 0; from < symbol.width;) {
        const bool black = moduleAt(symbol, 0, from);
        int to = from + 1;
        while (to < symbol.width && moduleAt(symbol, 0, to) == black) {
            ++to;
        }
        const int width = runDots(to - from, moduleDots, twoLevels);
        if (black) {
            bars.push_back({x, width});
        }
        x += width;
        from = to;
    }
    if (x > longest) {
        return tooWide(x, longest);
    }
    Symbol made{Bitmap(x, heightDots), reinterpret_cast<const char*>(symbol.text), {}};
    for (const Bar& bar : bars) {
        made.dots.fill(bar.x, 0, bar.width, heightDots);
    }
    return made;
}

} // namespace

std::string_view barcodeName(unsigned symbology)
{
    const auto index = indexOf(symbology);
    return index ? barcodes[*index].name : std::string_view();
}

Symbol encodeBarcode(unsigned symbology, std::string_view data, bool picksCode128Set,
                     int moduleDots, int heightDots, int longest)
{
    const auto index = indexOf(symbology);
    if (!index) {
        return problem(phrases::kindNotDrawn);
    }
    const Barcode& barcode = barcodes[*index];
    int zintSymbology = barcode.symbology;
    std::string characters(data);
    std::string checkDigit;
    if (*index <= ean8) {
        constexpr std::size_t digits[] = {11, 11, 12, 7};
        const std::size_t count = digits[*index];
        if (!isDigits(data) || data.size() < count || data.size() > count + 1) {
            return problem(phrases::wrongDigitCount);
        }
        checkDigit = data.substr(count);
        characters.resize(count);
        if (*index == upcE) {
            const auto suppressed = zeroSuppressed(characters);
            if (characters[0] != '0' || !suppressed) {
                return problem(phrases::notShortened);
            }
            characters = "0" + *suppressed;
        }
    } else if (*index == code39) {
        // The start and stop character may come with the data.
        characters.erase(0, characters.find_first_not_of('*'));
        characters.erase(characters.find_last_not_of('*') + 1);
    } else if (*index == code128 && !picksCode128Set) {
        Code128Data read = readCode128(data);
        if (!read.problem.empty()) {
            return problem(read.problem);
        }
        characters = std::move(read.characters);
        if (!read.usesC) {
            zintSymbology = BARCODE_CODE128B; // never changes to set C to save width
        }
    }

    Message error;
    const ZintSymbol symbol = encode(zintSymbology, characters, -1, error);
    if (symbol == nullptr) {
        return problem(error);
    }
    Symbol made = barsOf(*symbol, barcode.twoLevels, moduleDots, heightDots, longest);
    if (!checkDigit.empty() && made.problem.empty() &&
        made.text.substr(made.text.size() - 1) != checkDigit) {
        return problem(phrases::wrongCheckDigit);
    }
    return made;
}

Symbol encodeQr(std::string_view data, QrLevel level, int moduleDots, int longest)
{
    Message error;
    const ZintSymbol symbol = encode(BARCODE_QRCODE, data, static_cast<int>(level), error);
    if (symbol == nullptr) {
        return problem(error);
    }
    const int side = symbol->width * moduleDots;
    if (side > longest) {
        return tooWide(side, longest);
    }
    Symbol made{Bitmap(side, symbol->rows * moduleDots), {}, {}};
    for (int row = 0; row < symbol->rows; ++row) {
        for (int column = 0; column < symbol->width; ++column) {
            if (moduleAt(*symbol, row, column)) {
                made.dots.fill(column * moduleDots, row * moduleDots, moduleDots, moduleDots);
            }
        }
    }
    return made;
}

} // namespace virtual_printer
