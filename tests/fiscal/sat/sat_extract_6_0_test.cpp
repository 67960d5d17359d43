// The barcodes of SAT extracts whose keys have letters, at a site that follows today's rules.
#include "drawn_receipt.h"
#include "nfce_notes.h"

#include <algorithm>

using namespace q7test;

namespace
{

using SatExtract6_0 = NfceTest;

std::string withKey(std::string xml, const std::string& mark, const std::string& key)
{
    return xml.replace(xml.find(mark) + mark.size(), 44, key);
}

TEST_F(SatExtract6_0, KeysWithLettersAreReadFromThePaper)
{
    const std::pair<std::string, const char*> keys[] = {
        // with GS k and its data
        {"35261012ABC34501DE35590001234560043500000047",
         "1D 6B 49 21 \"{C\" 23 1A 0A 0C \"{AABC34501DE{C\" 23 3B 00 01 17 2D 3C 04 23 00 00 00 "
         "2F"},
        // One letter, on the odd places of two pairs.
        {"3526101A345678012359000123456004350000004712",
         "1D 6B 49 1D \"{C\" 23 1A 0A \"{A1A{C\" 22 38 4E 01 17 3B 00 01 17 2D 3C 04 23 00 00 00 "
         "2F "
         "0C"},
        // An odd number of digits behind the last letter.
        {"352610ABCDEFGHIJK359000123456004350000004712",
         "1D 6B 49 22 \"{C\" 23 1A 0A \"{AABCDEFGHIJK3{C\" 3B 00 01 17 2D 3C 04 23 00 00 00 2F 0C"},
    };
    for (const char* model : {"VANTA", "ORLA-K", "SORBE", "DUNEL", "RANZA"}) {
        openModel(model);
        for (const auto& [key, command] : keys) {
            const std::string sale = withKey(document("venda-simples"), "\"CFe", key);
            ASSERT_EQ(0, ImprimeXMLSAT(sale.c_str(), 2));
            const std::string bytes = takeSent();
            if (std::string(model) == "VANTA") {
                EXPECT_TRUE(contains(bytes, {"1D 68 32 1D 77 01 1D 48 04", command}));
            }
            constexpr int dotPixels = 3; // a module of one pixel is too narrow for the reader
            const auto symbols = drawn(bytes, model, dotPixels).front().symbols;
            EXPECT_EQ(std::count(symbols.begin(), symbols.end(), "CODE-128:" + key), 1) << model;
        }
        FechaConexaoImpressora();
    }
}

TEST_F(SatExtract6_0, OfACancellationHasBothKeys)
{
    const std::string sale = "35261012ABC34501DE35590001234560043500000047";
    const std::string xml = withKey(document("cancelamento"), "chCanc=\"CFe", sale);
    openModel("VANTA");
    ASSERT_EQ(0, ImprimeXMLCancelamentoSAT(xml.c_str(), std::string(344, 's').c_str(), 0));
    const std::string code = "CODE-128:" + sale;
    const auto symbols = drawn(takeSent(), "VANTA", 3).front().symbols;
    EXPECT_EQ(std::count(symbols.begin(), symbols.end(), code), 1);
}

// What the rules do not change.
TEST_F(SatExtract6_0, OfDigitsIsAsItAlwaysWas)
{
    openModel("VANTA");
    ASSERT_EQ(0, ImprimeXMLSAT(document("venda-simples").c_str(), 0));
    EXPECT_TRUE(sameAsGolden("sat/venda-simples.VANTA.0.txt", takeSent()));
}

} // namespace
