#include "recorded_connection.h"
#include "streams.h"
#include "table_glyphs.h"
#include "temporary_folder.h"
#include "test_files.h"

#include <gtest/gtest.h>
#include <lodepng.h>
#include <zbar.h>

#include <ctime>
#include <filesystem>
#include <map>

#include <sys/resource.h>

using namespace virtual_printer;
using q7test::hex;

namespace
{

TableGlyphs glyphs;

/** A picture in shades of grey. */
struct Picture8 {
    explicit Picture8(const std::string& path)
    {
        EXPECT_EQ(lodepng::decode(grey, width, height, path, LCT_GREY, 8), 0U) << path;
    }

    unsigned width = 0;
    unsigned height = 0;
    std::vector<unsigned char> grey;
};

/** Runs bytes through a job in a folder of its own. */
class Drawing : public testing::Test
{
protected:
    void draw(const std::string& stream, const char* model = "VANTA", Graphics graphics = {},
              Language language = Language::English)
    {
        m_wrote.clear();
        Workshop workshop{m_folder.path() + "/job",
                          {&glyphs, Picture::Frame::WithNotes, language},
                          std::move(graphics)};
        workshop.wrote = [this](const std::string& path) { m_wrote.push_back(path); };
        workshop.ended = [this](const JobEnd& end) { m_end = end; };
        RecordedConnection connection(workshop, *findModel(model), 1);
        connection.received(stream);
        connection.end();
    }

    Picture8 picture(const std::string& suffix = "1-1") const
    {
        return Picture8(m_folder.path() + "/job-" + suffix + ".png");
    }

    q7test::TemporaryFolder m_folder;
    std::vector<std::string> m_wrote;
    JobEnd m_end = {};
};

/** What an independent reader finds in the picture: "QR-Code:text". */
std::string readSymbols(const Picture8& picture)
{
    zbar::Image image(picture.width, picture.height, "Y800", picture.grey.data(),
                      picture.grey.size());
    zbar::ImageScanner scanner;
    scanner.set_config(zbar::ZBAR_NONE, zbar::ZBAR_CFG_ENABLE, 1);
    scanner.scan(image);
    std::string found;
    for (auto symbol = image.symbol_begin(); symbol != image.symbol_end(); ++symbol) {
        found += symbol->get_type_name() + ":" + symbol->get_data();
    }
    return found;
}

const std::string accessKey = "35240111222333000181590000123456781234567890";
const std::string qrText =
    "https://www.nfce.fazenda.example.gov.br/qrcode?p=" + accessKey + "|2|1|1|0123456789ABCDEF";

/** Every style, alignment, size, symbol and mode, on a small receipt. */
std::string everyStyle()
{
    return hex(
        "1B 40 1B 74 10 'Fonte A: ' E7 E3 'o' 0A 1B 21 01 'Fonte B: ' E7 E3 'o' 0A"
        "1B 40 1B 74 10 1B 61 01 1B 45 01 'Negrito' 1B 45 00 ' normal' 0A"
        "1B 61 02 1B 21 80 'Sublinhado ' 1B 21 81 'pequeno' 0A 1B 21 00 1B 61 00"
        "1D 42 01 ' Inverso ' 1D 42 00 ' direto ' 1B 21 01 1D 42 01 ' B ' 1D 42 00 0A 1B 21 00"
        "1D 21 11 'Dobro' 1D 21 01 ' alto' 1D 21 10 ' largo' 1D 21 00 ' um' 0A"
        "1B 33 28 'Entrelinha 40' 0A 'fim' 0A 1B 32"
        "1B 61 01 1D 68 28 1D 77 02 1D 48 02 1D 6B 43 0C '789100031550'"
        "1D 28 6B 03 00 31 43 03 1D 28 6B 0B 00 31 50 30 'Q7 teste'"
        "1D 28 6B 03 00 31 51 30 0A 1B 61 00"
        "1B 4C 1B 57 00 00 00 00 90 00 50 00 1D 28 4C 06 00 30 45 '00' 01 01"
        "1B 57 90 00 00 00 C8 00 50 00 1B 21 01 'Logotipo' 0A 'ao lado' 1B 21 00"
        "1B 57 58 01 00 00 50 00 50 00 1B 54 01 'sobe' 1B 54 03 'desce' 1B 0C 1B 53"
        "1B 70 30 64 64 1B 28 41 05 00 61 64 03 02 01 'perdido' 1B 40 'ok' 0A 1D 56 00");
}

Graphics testGraphic()
{
    Bitmap disc(64, 64);
    for (int y = 0; y < 64; ++y) {
        for (int x = 0; x < 64; ++x) {
            disc.set(x, y,
                     (x - 32) * (x - 32) + (y - 32) * (y - 32) < 900 && (x / 8 + y / 8) % 2 == 0);
        }
    }
    return {{"00", disc}};
}

} // namespace

TEST_F(Drawing, SymbolsCanBeScanned)
{
    const std::string centred = hex("1B 61 01 1D 68 32 1D 77 02 0A");
    const std::string qrSize{static_cast<char>(qrText.size() + 3), '\0'};
    struct Row {
        const char* model;
        std::string stream;
        std::string content;
    };
    const Row rows[] = {
        {"VANTA",
         hex("1D 28 6B 03 00 31 43 04 1D 28 6B 03 00 31 45 31 1D 28 6B") + qrSize +
             hex("31 50 30") + qrText + hex("1D 28 6B 03 00 31 51 30 0A"),
         "QR-Code:" + qrText},
        {"ORLA-K", hex("1D 6F 00 04 00 02 1D 6B 0B 'MA,'") + qrText + hex("00 0A"),
         "QR-Code:" + qrText},
        {"SORBE", hex("1D 6B 51 00 08 0E 01") + qrSize + qrText + "\n", "QR-Code:" + qrText},
        {"VANTA",
         hex("1D 48 04 1D 6B 49 18 '{C' 23 18 01 0B 16 17 21 00 01 51 3B 00 00 0C 22 38 4E 0C 22 "
             "38 4E 5A"),
         "CODE-128:" + accessKey},
        {"SORBE", hex("1D 6B 49 0C 'Caixa 123456' 0A"), "CODE-128:Caixa 123456"},
        {"VANTA", hex("1D 6B 49 08 '{BAb{C' 0C 22"), "CODE-128:Ab1234"},
        {"VANTA", hex("1D 6B 41 0B '03600029145'"), "UPC-A:036000291452"},
        {"VANTA", hex("1D 6B 42 0B '04210000526'"), "UPC-E:04252614"},
        {"VANTA", hex("1D 6B 43 0C '789100031550'"), "EAN-13:7891000315507"},
        {"VANTA", hex("1D 6B 44 07 '9638507'"), "EAN-8:96385074"},
        {"VANTA", hex("1D 6B 45 05 'A-1.Z'"), "CODE-39:A-1.Z"},
        {"VANTA", hex("1D 6B 46 06 '123456'"), "I2/5:123456"},
        {"VANTA", hex("1D 6B 47 06 'A12-3B'"), "Codabar:A12-3B"},
        {"VANTA", hex("1D 6B 48 04 'Ab1 '"), "CODE-93:Ab1 "}};
    for (const auto& [model, stream, content] : rows) {
        draw(centred + stream, model);
        EXPECT_EQ(readSymbols(picture()), content) << model;
    }
}

TEST_F(Drawing, EveryStyleLooksAsInTheReferencePicture)
{
    draw(everyStyle(), "VANTA", testGraphic());
    const Picture8 image = picture();
    const Picture8 reference(Q7_REFERENCE_PICTURE);
    const auto kept = std::filesystem::temp_directory_path() / "q7_styles_drawn.png";
    std::filesystem::copy_file(m_folder.path() + "/job-1-1.png", kept,
                               std::filesystem::copy_options::overwrite_existing);
    ASSERT_EQ(image.width, reference.width) << "drawn: " << kept;
    ASSERT_EQ(image.height, reference.height) << "drawn: " << kept;
    // A font renderer of another version may move a few dots of a glyph; a missing underline is
    // 24 dots in a tile.
    constexpr unsigned tile = 24;
    constexpr int mostDots = 12;
    std::map<std::pair<unsigned, unsigned>, int> different;
    for (unsigned at = 0; at < image.grey.size(); ++at) {
        if (image.grey[at] != reference.grey[at]) {
            ++different[{at % image.width / tile, at / image.width / tile}];
        }
    }
    for (const auto& [place, dots] : different) {
        EXPECT_LE(dots, mostDots) << "around " << place.first * tile << ',' << place.second * tile
                                  << "; drawn: " << kept;
    }
}

TEST_F(Drawing, ACutEndsAReceipt)
{
    draw(hex("'one' 0A 1D 56 00 1D 56 00 'two' 0A 1B 7A 'three'"));
    EXPECT_EQ(m_wrote.size(), 4U) << "a text and a picture of each of two receipts";
    EXPECT_EQ(m_end.faults, 1);
    EXPECT_EQ(m_end.firstFault, 14U);
    EXPECT_EQ(m_folder.read("job-1-1.txt").substr(0, 4), "one\n");
    EXPECT_EQ(m_folder.read("job-1-2.txt"), "two\n");
    EXPECT_NE(m_folder.read("job-1.list")
                  .find("21  >> the end of the connection throws away what was "
                        "received at 16 and not yet printed: three"),
              std::string::npos)
        << m_folder.read("job-1.list");
    EXPECT_EQ(m_folder.read("job-1.bin").size(), 21U);
}

TEST_F(Drawing, SpeaksPortugueseToWhoReadsIt)
{
    draw(hex("1D 28 6B 03 00 31 43 10 1D 28 6B 63 00 31 50 30") + std::string(96, 'q') +
             hex("1D 28 6B 03 00 31 51 30 1B 70 30 64 64 'fim'"),
         "VANTA", {}, Language::Portuguese);
    const std::string tooWide =
        "QR Code não impresso: tem 592 pontos de largura, e há lugar para 576";
    EXPECT_EQ(m_folder.read("job-1-1.txt"),
              "[" + tooWide + "]\n[gaveta 0: 200 ms ligada, 200 ms desligada]\n");
    const std::string list = m_folder.read("job-1.list");
    EXPECT_EQ(list.substr(list.find("     112")),
              "     112  1D 28 6B 03 00 31 51 30           GS ( k                    imprime QR "
              "Code\n     112  >> " +
                  tooWide +
                  "\n     120  1B 70 30 64 64                    ESC p 48 100 100          "
                  "gaveta\n     125  \"fim\"\n     128  >> o fim da conexão joga fora o que foi "
                  "recebido no byte 125 e ainda não foi impresso: fim\n");
}

TEST_F(Drawing, ALongReceiptIsSplitBetweenLines)
{
    std::string items;
    for (int item = 1; item <= 990; ++item) {
        std::string line = std::to_string(item) + " ARROZ TIPO 1 5KG 1 UN X 25.90";
        items += line + std::string(123 - line.size(), ' ') + "25.90";
    }
    const std::clock_t began = std::clock();
    draw(hex("1B 40 1B 21 01 1B 74 10") + items + "\n");
    EXPECT_LT(static_cast<double>(std::clock() - began) / CLOCKS_PER_SEC, 2.0 * Q7_SLOWNESS)
        << "seconds of processor time";
    int rows = 0;
    for (const char* part : {"1-1", "1-1-2", "1-1-3", "1-1-4"}) {
        rows += static_cast<int>(picture(part).height) - 2 * Picture::topDots;
    }
    EXPECT_EQ(rows, 990 * 2 * 30);
}

TEST_F(Drawing, HostileStreamsDoNoHarm)
{
    for (unsigned seed = 1; seed <= 12; ++seed) {
        // The tail puts an end to whatever the noise has begun.
        const std::string stream = hostileStream(seed, 20'000, everyStyle()) +
                                   std::string(70'000, '\0') + hex("1B 40 'still alive' 0A");
        draw(stream, seed % 2 == 0 ? "VANTA" : "VOLTA", testGraphic());
        const auto kept =
            std::count_if(m_wrote.begin(), m_wrote.end(), [](const std::string& path) {
                return q7test::fileContent(path).find("still alive\n") != std::string::npos;
            });
        EXPECT_EQ(kept, 1) << "seed " << seed;
    }
    rusage usage{};
    getrusage(RUSAGE_SELF, &usage);
    EXPECT_LT(usage.ru_maxrss / 1024, 256 * Q7_SLOWNESS) << "megabytes";
}
