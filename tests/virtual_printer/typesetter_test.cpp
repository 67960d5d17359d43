#include "command_parser.h"
#include "streams.h"
#include "typesetter.h"

#include <gtest/gtest.h>

using namespace virtual_printer;
using q7test::hex;

namespace
{

/** Every character is a black cell: where it lands is all that matters. */
struct BlackGlyphs : Glyphs {
    BlackGlyphs()
    {
        a.fill(0, 0, 12, 24);
        b.fill(0, 0, 9, 17);
    }
    const Bitmap& glyph(char16_t character, Font font) override
    {
        return character == u' ' ? blank : font == Font::A ? a : b;
    }
    Bitmap a{12, 24};
    Bitmap b{9, 17};
    Bitmap blank;
};

/** What a stream, in the notation of hex(), prints. */
struct Printed : Paper {
    explicit Printed(const std::string& stream, const char* model = "VANTA",
                     const Graphics& graphics = {})
    {
        BlackGlyphs glyphs;
        Typesetter typesetter(*findModel(model), glyphs, graphics, *this,
                              [this](std::uint64_t offset, std::string_view remark) {
                                  const std::string line = std::to_string(offset) + ">> ";
                                  events.push_back(line + std::string(remark));
                              });
        for (const Command& command : parseAll(hex(stream))) {
            typesetter.command(command);
        }
        typesetter.finish(hex(stream).size());
    }

    void print(const Bitmap& dots, int advanceDots, std::string_view read) override
    {
        // Where the last row of dots is black, "from-to"; of a barcode's many bars the outer edges.
        std::string runs;
        int first = dots.width();
        int end = 0;
        for (int x = 0, y = dots.height() - 1; x < dots.width(); ++x) {
            if (dots.at(x, y) && !dots.at(x - 1, y)) {
                runs += std::to_string(x) + "-";
                first = std::min(first, x);
            }
            if (dots.at(x, y) && !dots.at(x + 1, y)) {
                runs += std::to_string(x + 1) + " ";
                end = x + 1;
            }
        }
        if (std::count(runs.begin(), runs.end(), '-') > 3) {
            runs = std::to_string(first) + ".." + std::to_string(end) + " ";
        }
        events.push_back(runs + "h" + std::to_string(dots.height()) + " +" +
                         std::to_string(advanceDots) + " " + std::string(read));
        last = dots;
    }
    void feed(int dots) override { events.push_back("+" + std::to_string(dots)); }
    void cut() override { events.emplace_back("cut"); }
    void note(std::string_view text) override { events.push_back("note: " + std::string(text)); }

    Lines events;
    Bitmap last;
};

const std::string dashes16(16, '-');
const std::string dashes48(48, '-');
const std::string dashes64(64, '-');
const std::string ean13 = "1D 68 32 1D 77 02 1D 6B 43 0C '789100031550'"; // 95 modules, 13 digits
const std::string ean13Text = "[EAN-13 \"7891000315507\"]";

const StreamRow streams[] = {
    {"FontA", "'abc' 0A 0A", {"0-36 h24 +30 abc", "h0 +30 "}},
    {"FontB", "1B 21 01 '" + dashes64 + "' 0A", {"0-576 h17 +30 " + dashes64}},
    {"LineFeedsBehindAFullLine",
     "'" + dashes48 + "' 0A 0A",
     {"0-576 h24 +30 " + dashes48, "h0 +30 "}},
    {"WrapsWhatDoesNotFit",
     "'" + dashes48 + "ab' 0A",
     {"0-576 h24 +30 " + dashes48, "0-24 h24 +30 ab"}},
    // A 64-dash separator prints 48 dashes on a 48-column line and loses the rest.
    {"ResetLosesTheLine",
     "1B 40 1B 74 10 '" + dashes64 + "' 1B 40 'a' 0A",
     {"0-576 h24 +30 " + dashes48,
      "69>> the reset throws away what was received at 53 and not yet printed: " + dashes16,
      "0-12 h24 +30 a"}},
    {"ResetKeepsAFullLine",
     "'" + dashes48 + "' 1B 40 'a' 0A",
     {"0-576 h24 +30 " + dashes48, "0-12 h24 +30 a"}},
    {"ResetClearsSettings", "1B 61 01 1B 21 01 1B 33 40 1B 40 'a' 0A", {"0-12 h24 +30 a"}},
    {"TheEndPrintsNothing",
     "'abc'",
     {"3>> the end of the connection throws away what was received at 0 and not yet printed: "
      "abc"}},
    {"Centre", "1B 61 01 'ab' 0A", {"276-300 h24 +30 " + std::string(23, ' ') + "ab"}},
    {"Right", "1B 61 02 'ab' 0A", {"552-576 h24 +30 " + std::string(46, ' ') + "ab"}},
    {"AlignmentIgnored",
     "1B 61 FF 'a' 1B 61 02 'b' 0A",
     {"0>> argument out of range: ignored", "4>> in mid-line: ignored", "0-24 h24 +30 ab"}},
    {"Sizes", "1D 21 11 'a' 1D 21 77 'b' 0A", {"0-120 h192 +192 ab"}},
    {"SizeIgnored", "1D 21 08 'a' 0A", {"0>> argument out of range: ignored", "0-12 h24 +30 a"}},
    {"PrintModeReplacesTheFont", "1B 21 01 1B 21 80 'a' 0A", {"0-12 h24 +30 a"}},
    {"LineSpacing", "1B 33 28 'a' 0A 1B 33 01 'a' 0A", {"0-12 h24 +40 a", "0-12 h24 +24 a"}},
    {"ReverseBlanks", "1D 42 01 '   ' 1D 42 00 ' ' 0A", {"0-36 h24 +30     "}},
    {"UnderlinedBlanks", "1B 21 80 '  ' 0A", {"0-24 h24 +30   "}},
    {"Position", "'a' 1B 24 2C 01 'b' 0A", {"0-12 300-312 h24 +30 a" + std::string(24, ' ') + "b"}},
    {"PositionIgnored",
     "1B 24 FF FF 'b' 0A",
     {"0>> outside the line or the area: ignored", "0-12 h24 +30 b"}},
    {"MarginBeyondThePaper", "1D 4C FF FF 'b' 0A", {"h24 +30 " + std::string(48, ' ') + "b"}},
    {"Tab", "'a' 09 'b' 0A", {"0-12 96-108 h24 +30 a       b"}},
    {"CodeTables",
     "1B 74 10 C3 80 0A 1B 40 C3 0A 1B 74 02 80 0A",
     {"0-24 h24 +30 Ã€", "0-12 h24 +30 ├", "0-12 h24 +30 Ç"}},
    {"Feeds", "'a' 1B 64 03 1B 4A 10", {"0-12 h24 +30 a", "h0 +60 \n", "+16"}},
    {"Cut", "'a' 0A 1D 56 42 09", {"0-12 h24 +30 a", "+9", "cut"}},
    {"CutInMidLine",
     "'a' 1D 56 00",
     {"1>> cut in mid-line: the line is printed first", "0-12 h24 +30 a", "cut"}},
    {"DrawerAndBuzzer",
     "1B 70 31 32 64 1B 28 41 05 00 61 64 03 02 01",
     {"note: drawer 1: 100 ms on, 200 ms off", "note: buzzer 3 times: 200 ms on, 100 ms off"}},
    // Without its text, then above, below, on both sides; 4 is out of range and changes nothing.
    {"Barcode",
     ean13 + "1D 48 01" + ean13 + "1D 48 02" + ean13 + "1D 48 03" + ean13 + "1D 48 04" + ean13,
     {"0..190 h50 +50 " + ean13Text, "0..190 h74 +74 " + ean13Text, "17-173 h74 +74 " + ean13Text,
      "17-173 h98 +98 " + ean13Text, "97>> argument out of range: ignored",
      "17-173 h98 +98 " + ean13Text}},
    {"PageLosesWhatDoesNotFit",
     "1B 4C 1B 57 00 00 00 00 64 00 1E 00 'in' 0A 'out' 0A 1B 40 'a' 0A",
     {"18>> below the page area, not printed: out",
      "19>> the reset throws away a page that was not printed", "0-12 h24 +30 a"}},
    {"PageCommandsOutsideAPage",
     "18 1B 0C 1D 24 00 00",
     {"0>> only in page mode: ignored", "1>> only in page mode: ignored",
      "3>> only in page mode: ignored"}},
};

std::string dotsOf(const Bitmap& dots)
{
    const auto size = dots.bytesPerRow() * static_cast<std::size_t>(dots.height());
    return {dots.row(0), dots.row(0) + size};
}

} // namespace

TEST(Typesetter, PrintsWhereTheCommandsSay)
{
    for (const auto& [name, stream, gives] : streams) {
        EXPECT_EQ(Printed(stream).events, gives) << name;
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
        {"1D 77 06 1D 6B 43 0C '789100031550'", "is 570 dots wide, there are 504"},
        {"1D 6B 47 03 'AxB'", "cannot be encoded: Error 357: Invalid character in data "
                              "(\"0123456789-$:/.+ABCD\" only)"},
        {"1D 6B 4A 03 'abc'", "is of a kind that is not drawn"}};
    for (const auto& [notation, reason] : rows) {
        const std::string problem = std::string("barcode not printed: it ") + reason;
        const Printed printed(std::string(notation) + "'after' 0A", "ORLA-K");
        EXPECT_EQ(printed.events[1], "note: " + problem);
        EXPECT_EQ(printed.events[2], "0-60 h24 +30 after");
    }
}

TEST(PageMode, PlacesTextInItsAreasAndDirections)
{
    // An area of 100 by 60 dots at 200, 20; a character of 12 by 24 dots at its start.
    const auto page = [](const std::string& direction) {
        return dotsOf(
            Printed("1B 4C 1B 57 C8 00 14 00 64 00 3C 00 1B 54" + direction + "'a' 0C").last);
    };
    const auto cell = [](int x, int y, int width, int height) {
        Bitmap expected(576, 80); // down to the foot of the area
        expected.fill(x, y, width, height);
        return dotsOf(expected);
    };
    EXPECT_EQ(page("00"), cell(200, 20, 12, 24));
    EXPECT_EQ(page("01"), cell(200, 68, 24, 12));
    EXPECT_EQ(page("02"), cell(288, 56, 12, 24));
    EXPECT_EQ(page("03"), cell(276, 20, 24, 12));
}

TEST(PageMode, PrintsTheLogoHeading)
{
    Bitmap logo(100, 50);
    logo.fill(0, 0, 100, 50);
    const std::string heading =
        "1B 4C 1B 57 00 00 00 00 E1 00 00 01 18 1B 54 00 1B 24 23 00 1D 28 4C 06 00 30 45 '00' 01 "
        "01 1B 57 E1 00 0A 00 6E 01 00 01 1B 21 01 'Loja' 0A 'Rua 1' 1B 0C 1B 53 'after' 0A";
    const std::string indent(25, ' ');
    EXPECT_EQ(Printed(heading, "VANTA", {{"00", logo}}).events,
              (Lines{"h266 +266    [graphic \"00\"]\n" + indent + "Loja\n" + indent + "Rua 1",
                     "0-45 h17 +30 after"}));
    EXPECT_EQ(Printed(heading).events.front(),
              "20>> no graphic is stored under \"00\": nothing printed");
}

TEST(PageMode, HoldsSymbolsWhereTheModelHasThem)
{
    // The QR code of "a" has 21 modules: 84 dots.
    const std::string page = "1B 4C 1B 57 00 00 00 00 E1 00 90 01 1D 24 2C 01"
                             "1D 28 6B 03 00 31 43 04 1D 28 6B 04 00 31 50 30 'a'"
                             "1D 28 6B 03 00 31 51 30 0C";
    const Bitmap hanging = Printed(page, "VANTA").last;
    const Bitmap standing = Printed(page, "VOLTA").last;
    EXPECT_TRUE(hanging.at(0, 300) && !hanging.at(0, 299));
    EXPECT_TRUE(standing.at(0, 323) && !standing.at(0, 324)) << "on the line at 300";
}
