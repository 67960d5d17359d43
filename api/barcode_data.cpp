#include "barcode_data.h"

#include <algorithm>
#include <cstring>

namespace q7
{
namespace
{

bool isDigit(char c)
{
    return c >= '0' && c <= '9';
}

bool isAscii(char c)
{
    return static_cast<unsigned char>(c) < 128;
}

bool isCode39(char c)
{
    return isDigit(c) || (c >= 'A' && c <= 'Z') || (c != '\0' && std::strchr(" $%*+-./", c));
}

bool isCodabar(char c)
{
    return isDigit(c) || (c != '\0' && std::strchr("-$:/.+", c));
}

bool isCodabarEnd(char c)
{
    return c != '\0' && std::strchr("ABCDabcd", c);
}

template <typename Test> bool all(Bytes data, Test test)
{
    return std::all_of(data.begin(), data.end(), test);
}

// Without or with its check digit.
bool isDigits(Bytes data, std::size_t length)
{
    return (data.size() == length || data.size() == length + 1) && all(data, isDigit);
}

bool isShort(Bytes data)
{
    return !data.empty() && data.size() <= 255;
}

} // namespace

bool hasSubsetSelector(Bytes data)
{
    return data.startsWith("{A") || data.startsWith("{B") || data.startsWith("{C");
}

bool isBarcodeData(int type, Bytes data, bool choosesSubset)
{
    switch (type) {
    case UpcA:
        return isDigits(data, 11);
    case UpcE:
        return isDigits(data, 11) && data.startsWith("0");
    case Ean13:
        return isDigits(data, 12);
    case Ean8:
        return isDigits(data, 7);
    case Code39:
        return isShort(data) && all(data, isCode39);
    case Itf: // an empty one would make the printer take the next command for its length
        return !data.empty() && data.size() % 2 == 0 && all(data, isDigit);
    case Codabar:
        return data.size() >= 2 && isCodabarEnd(data.front()) && isCodabarEnd(data.back()) &&
               all(data.substr(1, data.size() - 2), isCodabar);
    case Code93:
        return isShort(data) && all(data, isAscii);
    case Code128:
        return (choosesSubset || hasSubsetSelector(data)) && all(data, isAscii);
    default:
        return false;
    }
}

} // namespace q7
