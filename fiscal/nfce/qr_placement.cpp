#include "qr_placement.h"

#include <algorithm>
#include <array>
#include <cstring>
#include <iterator>
#include <limits>

namespace q7
{
namespace
{

// ISO/IEC 18004: bytes that versions 1 to 40 hold at level M.
constexpr int byteCapacities[] = {14,   26,   42,   62,   84,   106,  122,  152,  180,  213,
                                  251,  287,  331,  362,  412,  450,  504,  560,  624,  666,
                                  711,  779,  857,  911,  997,  1059, 1125, 1190, 1264, 1370,
                                  1452, 1538, 1628, 1722, 1809, 1911, 1989, 2099, 2213, 2331};

int modulesOf(int version)
{
    return 17 + 4 * version;
}

// Versions share the size of their character counts: 1 to 9, 10 to 26, 27 to 40.
int countGroupOf(int version)
{
    return version < 10 ? 0 : version < 27 ? 1 : 2;
}

// All that a version holds: its bytes, with their mode and their count, end in whole code words.
int capacityBits(int version)
{
    const int headCodeWords = version < 10 ? 2 : 3;
    return (byteCapacities[version - 1] + headCodeWords) * 8;
}

struct Mode {
    int sixthsOfBitPerCharacter;
    int countBits[3]; // by group of versions
    bool (*accepts)(char c);
};

bool isDigit(char c)
{
    return c >= '0' && c <= '9';
}

bool isAlphanumeric(char c)
{
    return isDigit(c) || (c >= 'A' && c <= 'Z') || (c != '\0' && std::strchr(" $%*+-./:", c));
}

bool isAny(char)
{
    return true;
}

// Three digits take 10 bits, two alphanumeric characters 11, a byte 8.
constexpr std::array<Mode, 3> modes = {
    {{20, {10, 12, 14}, isDigit}, {33, {9, 11, 13}, isAlphanumeric}, {48, {8, 16, 16}, isAny}}};

int wholeBits(int sixths)
{
    return (sixths + 5) / 6 * 6;
}

// The bits of the text in the best sequence of modes, which may change before any character.
int fewestBits(const QByteArray& text, int countGroup)
{
    constexpr int modeBits = 4;
    constexpr int unreachable = std::numeric_limits<int>::max() / 2;
    const auto headOf = [countGroup](const Mode& mode) {
        return (modeBits + mode.countBits[countGroup]) * 6;
    };
    // The least cost of what has been read with each mode open for the next character.
    std::array<int, modes.size()> costs = {};
    std::transform(modes.begin(), modes.end(), costs.begin(), headOf);
    int closed = 0; // with none open
    for (const char c : text) {
        closed = unreachable;
        for (std::size_t i = 0; i < modes.size(); ++i) {
            costs[i] =
                modes[i].accepts(c) ? costs[i] + modes[i].sixthsOfBitPerCharacter : unreachable;
            closed = std::min(closed, wholeBits(costs[i]));
        }
        for (std::size_t i = 0; i < modes.size(); ++i)
            costs[i] = std::min(costs[i], closed + headOf(modes[i]));
    }
    return closed / 6;
}

bool holdsAtBest(int version, const QByteArray& text)
{
    return fewestBits(text, countGroupOf(version)) <= capacityBits(version);
}

} // namespace

std::optional<QrSide> qrSideOf(const QByteArray& text)
{
    const int* const version =
        std::lower_bound(std::begin(byteCapacities), std::end(byteCapacities), text.size());
    if (version == std::end(byteCapacities))
        return {};
    const int asBytes = static_cast<int>(version - std::begin(byteCapacities)) + 1;
    int atBest = asBytes;
    while (atBest > 1 && holdsAtBest(atBest - 1, text))
        --atBest;
    return QrSide{modulesOf(asBytes), modulesOf(atBest)};
}

std::optional<QrPlacement> placeQrCode(const QByteArray& text, int lineDots, bool besideText)
{
    constexpr int leastSideDots = 176; // 22 mm
    constexpr int mostBesideDots = 264;

    const std::optional<QrSide> side = qrSideOf(text);
    if (!side)
        return {};
    const auto placed = [&](int dots, bool isBeside) {
        return QrPlacement{dots, dots * side->mostModules, isBeside};
    };
    int moduleDots = 3;
    while (moduleDots < 6 && moduleDots * side->fewestModules < leastSideDots)
        ++moduleDots;

    const QrPlacement beside = placed(moduleDots, true);
    if (besideText && beside.sideDots + 2 * qrQuietZoneDots <= mostBesideDots)
        return beside;
    // Alone on its line it can be larger than it must.
    for (const int dots : {std::max(moduleDots, 4), 3, 2})
        if (const QrPlacement below = placed(dots, false); below.sideDots <= lineDots)
            return below;
    return {};
}

} // namespace q7
