// The size and the place of QR codes, beside those that an encoder makes.
#include "qr_placement.h"
#include "symbols.h"

#include <gtest/gtest.h>

using namespace q7;

namespace
{

const std::string key = "35261097531246000121650020000500011100000010";

/** Small letters, which no printer packs closer than as bytes. */
std::string letters(std::size_t count)
{
    return std::string(count, 'x');
}

/** A text of that size as notes have it, with its key and its figures. */
std::string qrText(std::size_t size)
{
    const std::string fields = "?p=" + key + "|2|1|03|74.29|";
    return letters(size - fields.size()) + fields;
}

std::optional<QrPlacement> place(const std::string& text, int lineDots = 576, bool beside = true)
{
    return placeQrCode(QByteArray::fromStdString(text), lineDots, beside);
}

TEST(QrPlacement, CountsWithWhatPrintersCanMakeOfAText)
{
    for (const std::string& text :
         {letters(14), letters(15), std::string(40, '7'), std::string("A1B2C3D4E5"), key,
          qrText(92), qrText(109), qrText(122), qrText(181), qrText(231), qrText(460), qrText(1000),
          std::string("https://www.nfce.fazenda.sp.gov.br/qrcode?p=") + key +
              "|2|1|03|74.29|55525a6164644275543872365237504a78554a64646334307338673d|1|"
              "7D7F7D4A99819D6339C2BC22676FB8524C0B6B15",
          letters(2331), std::string(2331, '7')}) {
        const auto side = qrSideOf(QByteArray::fromStdString(text));
        ASSERT_TRUE(side) << text;
        using namespace virtual_printer;
        EXPECT_EQ(side->fewestModules, encodeQr(text, QrLevel::M, 1, 177).dots.width()) << text;
        EXPECT_EQ(side->mostModules,
                  encodeQr(letters(text.size()), QrLevel::M, 1, 177).dots.width())
            << text;
    }
    EXPECT_FALSE(qrSideOf(QByteArray(2332, '7')));
}

struct Placing {
    const char* name;
    std::string text;
    int lineDots;
    bool isBesideAllowed;
    int moduleDots;
    int sideDots;
    bool isBeside;
};

// Sizes at the borders of the versions.
const Placing placings[] = {
    {"62_bytes", letters(62), 576, true, 6, 198, true},
    {"63_bytes", letters(63), 576, true, 5, 185, true},
    {"122_bytes", letters(122), 576, true, 4, 180, true},
    {"123_bytes", letters(123), 576, true, 4, 196, true},
    {"180_bytes", letters(180), 576, true, 4, 212, true},
    {"181_bytes", letters(181), 576, true, 4, 228, true},
    {"213_bytes", letters(213), 576, true, 4, 228, true},
    {"214_bytes", letters(214), 576, true, 3, 183, true},
    {"412_bytes", letters(412), 576, true, 3, 231, true},
    {"413_bytes", letters(413), 576, true, 4, 324, false},
    {"997_bytes", letters(997), 504, true, 4, 468, false},
    {"1452_bytes", letters(1452), 576, true, 4, 564, false},
    {"1453_bytes", letters(1453), 576, true, 3, 435, false},
    {"1125_bytes_narrow", letters(1125), 504, true, 4, 500, false},
    {"1126_bytes_narrow", letters(1126), 504, true, 3, 387, false},
    {"longest", letters(2331), 576, true, 3, 531, false},
    {"longest_narrow", letters(2331), 504, true, 2, 354, false},
    // Alone on its line, and yet 22 mm.
    {"92_bytes_below", letters(92), 504, false, 5, 205, false},
    {"152_bytes_below", letters(152), 504, false, 4, 196, false},
    {"214_bytes_below", letters(214), 504, false, 4, 244, false},
    // A printer that packs digits closer makes a smaller code, which must have its 22 mm too.
    {"109_bytes_with_a_key", qrText(109), 576, true, 5, 225, true},
    {"231_bytes_with_a_key", qrText(231), 576, true, 4, 244, false},
};

TEST(QrPlacement, IsLargeEnoughAndFits)
{
    for (const Placing& row : placings) {
        const auto qr = place(row.text, row.lineDots, row.isBesideAllowed);
        ASSERT_TRUE(qr) << row.name;
        EXPECT_EQ(qr->moduleDots, row.moduleDots) << row.name;
        EXPECT_EQ(qr->sideDots, row.sideDots) << row.name;
        EXPECT_EQ(qr->isBesideText, row.isBeside) << row.name;
    }
}

TEST(QrPlacement, HasNoPlaceForWhatIsTooLong)
{
    EXPECT_FALSE(place(letters(2332)));
    EXPECT_FALSE(place(letters(2331), 353));
}

} // namespace
