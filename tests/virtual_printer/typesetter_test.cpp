#include "bytes.h"
#include "command_parser.h"
#include "typesetter.h"

#include <gtest/gtest.h>

using namespace virtual_printer;

namespace
{

/** Every character is a black cell: where it lands is all that matters. */
class BlackGlyphs : public Glyphs
{
public:
    BlackGlyphs()
    {
        m_a.fill(0, 0, 12, 24);
        m_b.fill(0, 0, 9, 17);
    }
    const Bitmap& glyph(char16_t character, Font font) override
    {
        return character == u' ' ? m_blank : font == Font::A ? m_a : m_b;
    }

private:
    Bitmap m_a{12, 24};
    Bitmap m_b{9, 17};
    Bitmap m_blank;
};

/** What a stream prints. */
struct Printed : Paper {
    explicit Printed(const std::string& stream, const char* model = "VANTA",
                     const Graphics& graphics = {})
    {
        BlackGlyphs glyphs;
        Typesetter typesetter(*findModel(model), glyphs, graphics, *this,
                              [this](std::uint64_t offset, std::string_view remark) {
                                  remarks.push_back(std::to_string(offset) + " " +
                                                    std::string(remark));
                              });
        for (const Command& command : parseAll(stream)) {
            typesetter.command(command);
        }
        typesetter.finish(stream.size());
    }

    void print(const Bitmap& dots, int advanceDots, std::string_view read) override
    {
        // The black runs of the line's last row of dots, as "from-to".
        std::string runs;
        for (int x = 0; dots.height() > 0 && x < dots.width(); ++x) {
            const int y = dots.height() - 1;
            if (dots.at(x, y) && !dots.at(x - 1, y)) {
                runs += (runs.empty() ? "" : " ") + std::to_string(x) + "-";
            }
            if (dots.at(x, y) && !dots.at(x + 1, y)) {
                runs += std::to_string(x + 1);
            }
        }
        lines.push_back(runs + " h" + std::to_string(dots.height()) + " +" +
                        std::to_string(advanceDots));
        text.append(read).append("\n");
        last = dots;
    }
    void feed(int dots) override { lines.push_back("+" + std::to_string(dots)); }
    void cut() override { lines.emplace_back("cut"); }
    void note(std::string_view note) override { notes.emplace_back(note); }

    std::vector<std::string> lines;
    std::string text;
    std::vector<std::string> notes;
    std::vector<std::string> remarks;
    Bitmap last;
};

using Lines = std::vector<std::string>;

struct Layout {
    const char* name;
    std::string stream;
    Lines lines;
};
void PrintTo(const Layout& row, std::ostream* out)
{
    *out << row.name;
}

class Positions : public testing::TestWithParam<Layout>
{
};

const std::string dashes48(48, '-');
const std::string dashes64(64, '-');

} // namespace

TEST_P(Positions, AreTheCommandsColumns)
{
    EXPECT_EQ(Printed(GetParam().stream).lines, GetParam().lines);
}

INSTANTIATE_TEST_SUITE_P(
    Lines, Positions,
    testing::Values(
        Layout{"FontA", "abc\n", {"0-36 h24 +30"}}, Layout{"EmptyLine", "\n", {" h0 +30"}},
        Layout{"FontBFillsTheWidth", bytes("1B 21 01") + dashes64 + "\n", {"0-576 h17 +30"}},
        Layout{"FontAFillsTheWidth", dashes48 + "\n", {"0-576 h24 +30"}},
        Layout{"WrapsWhatDoesNotFit", dashes48 + "ab\n", {"0-576 h24 +30", "0-24 h24 +30"}},
        Layout{"LineFeedsBehindAFullLine", dashes48 + "\n\n", {"0-576 h24 +30", " h0 +30"}},
        Layout{"Centre", bytes("1B 61 01 'ab' 0A"), {"276-300 h24 +30"}},
        Layout{"Right", bytes("1B 61 02 'ab' 0A"), {"552-576 h24 +30"}},
        Layout{"AlignmentOutOfRange", bytes("1B 61 01 1B 61 FF 'ab' 0A"), {"276-300 h24 +30"}},
        Layout{"AlignmentInMidLine", bytes("'a' 1B 61 02 'b' 0A"), {"0-24 h24 +30"}},
        Layout{"Sizes", bytes("1D 21 11 'a' 1D 21 77 'b' 0A"), {"0-120 h192 +192"}},
        Layout{"SizeOutOfRange", bytes("1D 21 08 'a' 0A"), {"0-12 h24 +30"}},
        Layout{"PrintModeReplacesTheFont", bytes("1B 21 01 1B 21 80 'a' 0A"), {"0-12 h24 +30"}},
        Layout{"LineSpacing",
               bytes("1B 33 28 'a' 0A 1B 33 01 'a' 0A"),
               {"0-12 h24 +40", "0-12 h24 +24"}},
        Layout{"ReverseBlanks", bytes("1D 42 01 '   ' 1D 42 00 ' ' 0A"), {"0-36 h24 +30"}},
        Layout{"UnderlinedBlanks", bytes("1B 21 80 '  ' 0A"), {"0-24 h24 +30"}},
        Layout{"Position", bytes("'a' 1B 24 2C 01 'b' 0A"), {"0-12 300-312 h24 +30"}},
        Layout{"PositionOutOfRange", bytes("1B 24 FF FF 'b' 0A"), {"0-12 h24 +30"}},
        Layout{"Tab", bytes("'a' 09 'b' 0A"), {"0-12 96-108 h24 +30"}},
        Layout{"ResetClearsSettings",
               bytes("1B 61 01 1B 21 01 1B 33 40 1B 40 'a' 0A"),
               {"0-12 h24 +30"}},
        Layout{"Feeds", bytes("'a' 1B 64 03 1B 4A 10"), {"0-12 h24 +30", " h0 +60", "+16"}},
        Layout{"Cut", bytes("'a' 0A 1D 56 00"), {"0-12 h24 +30", "cut"}},
        Layout{"CutInMidLine", bytes("'a' 1D 56 00"), {"0-12 h24 +30", "cut"}}),
    [](const auto& row) { return row.param.name; });

TEST(Reset, ThrowsAwayTheLineThatIsNotYetPrinted)
{
    // A 64-dash separator prints 48 dashes on a 48-column line and loses the rest.
    const Printed printed(bytes("1B 40 1B 74 10") + dashes64 + bytes("1B 40 'a' 0A"));
    EXPECT_EQ(printed.text, dashes48 + "\na\n");
    EXPECT_EQ(printed.remarks, Lines{"69 the reset throws away what was received at 53 and not yet "
                                     "printed: ----------------"});
    // A separator as long as the line is on paper before the reset.
    EXPECT_EQ(Printed(dashes48 + bytes("1B 40 'a' 0A")).text, dashes48 + "\na\n");
    EXPECT_EQ(Printed("abc").remarks.size(), 1U) << "the end of the connection prints nothing";
}

TEST(Text, IsReadInTheChosenCodeTable)
{
    EXPECT_EQ(Printed(bytes("1B 74 10 'N' C3 'O ' 80 0A 1B 40 C3 0A 1B 74 02 80 0A")).text,
              "NÃO €\n├\nÇ\n");
    EXPECT_EQ(Printed(bytes("1B 61 01 1D 21 10 'AB' 0A")).text, "                      AB\n");
}

TEST(Barcode, ObeysHeightWidthAndTextPosition)
{
    const std::string digits = bytes("1D 6B 43 0C '789100031550'");
    const std::string size = bytes("1D 68 32 1D 77 02");
    // EAN-13 has 95 modules, its text 13 characters of 12 dots.
    Printed plain(size + digits);
    EXPECT_EQ(plain.last.height(), 50);
    EXPECT_TRUE(plain.last.at(0, 0) && plain.last.at(189, 49) && !plain.last.at(190, 49));
    const auto height = [&](const char* position) {
        return Printed(size + bytes(position) + digits).last.height();
    };
    EXPECT_EQ(height("1D 48 01"), 74);
    EXPECT_EQ(height("1D 48 02"), 74);
    EXPECT_EQ(height("1D 48 03"), 98);
    EXPECT_EQ(height("1D 48 04"), 50) << "out of range: the setting stays none";
    EXPECT_EQ(height("1D 48 02 1D 48 04"), 74) << "out of range: the setting stays below";
    EXPECT_EQ(plain.text, "[EAN-13 \"7891000315507\"]\n");
}

TEST(Barcode, IsMadeForEverySymbology)
{
    const std::pair<const char*, const char*> rows[] = {
        {"41 0B '03600029145'", "[UPC-A \"036000291452\"]"},
        {"42 0B '04210000526'", "[UPC-E \"04252614\"]"},
        {"44 07 '9638507'", "[EAN-8 \"96385074\"]"},
        {"45 05 'A-1.Z'", "[CODE39 \"*A-1.Z*\"]"},
        {"46 06 '123456'", "[ITF \"123456\"]"},
        {"47 06 'A12-3B'", "[CODABAR \"A12-3B\"]"},
        {"48 04 'Ab1 '", "[CODE93 \"Ab1 \"]"},
        {"49 08 '{BAb{C' 0C 22", "[CODE128 \"Ab1234\"]"}};
    for (const auto& [notation, caption] : rows) {
        const Printed printed(bytes(std::string("1D 77 01 1D 6B ") + notation));
        EXPECT_EQ(printed.text, std::string(caption) + "\n");
        EXPECT_FALSE(printed.last.isBlank());
    }
}

TEST(Barcode, ThatCannotBePrintedIsNoted)
{
    const std::pair<const char*, const char*> rows[] = {
        {"1D 6B 43 0D '7891000315500'", "has the wrong check digit"},
        {"1D 6B 43 03 '789'", "has the wrong number of digits"},
        {"1D 6B 42 0B '04210012345'", "cannot be shortened to UPC-E"},
        {"1D 6B 49 03 'abc'", "has no set selector"},
        {"1D 6B 49 03 '{C' 64", "has a pair of digits above 99"},
        {"1D 77 06 1D 6B 49 0C '{Babcdefghij'", "is 870 dots wide, there are 576"},
        {"1D 6B 4A 03 'abc'", "is of a kind that is not drawn"}};
    for (const auto& [notation, reason] : rows) {
        const Printed printed(bytes(notation) + "after\n");
        EXPECT_EQ(printed.notes, Lines{std::string("barcode not printed: it ") + reason});
        EXPECT_EQ(printed.text, "after\n");
    }
}

TEST(PageMode, PlacesTextInItsAreasAndDirections)
{
    const auto corner = [](const char* direction) {
        // An area of 100 by 60 dots at 200, 20; a character of 12 by 24 dots at its start.
        const Printed printed(bytes("1B 4C 1B 57 C8 00 14 00 64 00 3C 00 1B 54") +
                              bytes(direction) + bytes("'a' 0C"));
        const Bitmap& page = printed.last;
        EXPECT_EQ(page.height(), 80) << "down to the foot of the area";
        int left = page.width();
        int top = page.height();
        int right = 0;
        int bottom = 0;
        for (int y = 0; y < page.height(); ++y) {
            for (int x = 0; x < page.width(); ++x) {
                if (page.at(x, y)) {
                    left = std::min(left, x);
                    right = std::max(right, x + 1);
                    top = std::min(top, y);
                    bottom = std::max(bottom, y + 1);
                }
            }
        }
        return std::vector<int>{left, top, right, bottom};
    };
    EXPECT_EQ(corner("00"), (std::vector<int>{200, 20, 212, 44}));
    EXPECT_EQ(corner("01"), (std::vector<int>{200, 68, 224, 80}));
    EXPECT_EQ(corner("02"), (std::vector<int>{288, 56, 300, 80}));
    EXPECT_EQ(corner("03"), (std::vector<int>{276, 20, 300, 32}));
}

TEST(PageMode, PrintsTheLogoHeading)
{
    Bitmap logo(100, 50);
    logo.fill(0, 0, 100, 50);
    const std::string heading =
        bytes("1B 4C 1B 57 00 00 00 00 E1 00 00 01 18 1B 54 00 1B 24 23 00 1D 28 4C 06 00 30 45 "
              "'00' 01 01"
              "1B 57 E1 00 0A 00 6E 01 00 01 1B 21 01 'Loja' 0A 'Rua 1' 1B 0C 1B 53 'after' 0A");
    const Printed printed(heading, "VANTA", {{"00", logo}});
    EXPECT_EQ(printed.text, "   [graphic \"00\"]\n" + std::string(25, ' ') + "Loja\n" +
                                std::string(25, ' ') + "Rua 1\nafter\n");
    EXPECT_EQ(printed.lines.front().substr(printed.lines.front().find(" h")), " h266 +266");
    EXPECT_TRUE(printed.remarks.empty()) << printed.remarks.front();
    EXPECT_EQ(Printed(heading).remarks,
              Lines{"20 no graphic is stored under \"00\": nothing printed"});
}

TEST(PageMode, HoldsSymbolsWhereTheModelHasThem)
{
    // The QR code of "a" has 21 modules: 84 dots.
    const std::string page = bytes("1B 4C 1B 57 00 00 00 00 E1 00 90 01 1D 24 2C 01"
                                   "1D 28 6B 03 00 31 43 04 1D 28 6B 04 00 31 50 30 'a'"
                                   "1D 28 6B 03 00 31 51 30 0C");
    EXPECT_TRUE(Printed(page, "VANTA").last.at(0, 300));
    EXPECT_FALSE(Printed(page, "VANTA").last.at(0, 299));
    EXPECT_TRUE(Printed(page, "VOLTA").last.at(0, 323)) << "it stands on the line at 300";
    EXPECT_FALSE(Printed(page, "VOLTA").last.at(0, 324));
}

TEST(PageMode, SaysWhatIsLost)
{
    const Printed printed(
        bytes("1B 4C 1B 57 00 00 00 00 64 00 1E 00 'in' 0A 'out' 0A 1B 40 'a' 0A"));
    EXPECT_EQ(printed.text, "a\n");
    EXPECT_EQ(printed.remarks, (Lines{"18 below the page area, not printed: out",
                                      "19 the reset throws away a page that was not printed"}));
    EXPECT_EQ(Printed(bytes("18 0C 1B 0C 1D 24 00 00 'a' 0A")).remarks.size(), 4U);
}

TEST(Drawer, AndBuzzerAreNoted)
{
    const Printed printed(bytes("1B 70 31 32 64 1B 28 41 05 00 61 64 03 02 01"));
    EXPECT_EQ(printed.notes,
              (Lines{"drawer 1: 100 ms on, 200 ms off", "buzzer 3 times: 200 ms on, 100 ms off"}));
}
