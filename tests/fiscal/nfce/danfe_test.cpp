// DANFE NFC-e receipts, as the printer gets them.
#include "nfce_notes.h"

using namespace q7test;

namespace
{

constexpr char consumerNote[] = "autorizada-consumidor-cpf";
constexpr char contingencyNote[] = "contingencia-offline";

std::string consumerWith(const std::vector<Edit>& edits)
{
    return edited(document(consumerNote), edits);
}

std::string consumerWithout(const std::string& element, const std::string& instead = {})
{
    return without(document(consumerNote), element, instead);
}

using Danfe = NfceTest;

using WholeReceipt = ReceiptTest;

TEST_P(WholeReceipt, IsAsLaidOut)
{
    EXPECT_TRUE(isAsLaidOut());
}

constexpr Receipt receipts[] = {
    {"consumer_vanta", consumerNote, "VANTA", 0},
    {"consumer_vanta_all_options", consumerNote, "VANTA", 0x1DA},
    {"consumer_orla_k", consumerNote, "ORLA-K", 0x40},
    {"no_consumer_dunel", "autorizada-sem-consumidor", "DUNEL", 0x100},
    {"contingency_vanta", contingencyNote, "VANTA", 0},
    {"contingency_volta_one_copy", contingencyNote, "VOLTA", 0x201},
    {"homologation_sorbe", "homologacao", "SORBE", 0x12},
};
INSTANTIATE_TEST_SUITE_P(Nfce, WholeReceipt, testing::ValuesIn(receipts),
                         [](const auto& row) { return std::string(row.param.name); });

TEST_F(Danfe, OfARefusedNoteIsNotPrinted)
{
    const std::string sound = document(consumerNote);
    EXPECT_EQ(-4, ImprimeXMLNFCe("", 1, "CSC", 65536));
    openModel("VANTA");
    EXPECT_EQ(-102, ImprimeXMLNFCe(nullptr, 1, nullptr, 0));
    expectRefused({
        {sound, -104, 65536},
        {sound, -104, -1},
        {"", -102},
        {"no xml", -102},
        {sound.substr(0, 4000), -102},
        {document("venda-simples"), -102},
        {consumerWith({{"519466\" versao=\"4.00\"", "519466\""}}), -102},
        {consumerWith({{"519466\" versao=\"4.00\"", "519466\" versao=\"3.10\""}}), -101},
        {consumerWithout("urlChave"), -103},
        {consumerWithout("tpEmis"), -103},
        {consumerWith({{"<tpEmis>1", "<tpEmis>0"}}), -103},
        {consumerWith({{"<tpEmis>1", "<tpEmis>x"}}), -103},
    });
}

std::string blanks(std::size_t count)
{
    return std::string(count, ' ');
}

std::string small(const std::string& line)
{
    return "1B 40 1B 21 01 1B 74 10 \"" + line + "\\n\"";
}

TEST_F(Danfe, PrintsWhatTheNoteHas)
{
    const struct {
        std::string xml;
        std::vector<std::string> lines; // that the receipt has, one behind the other
    } rows[] = {
        // All lines behind a bar move on by one, also into the places of dates.
        {consumerWith({{"<xNome>Marina ", "<xNome>Marina|"}}),
         {R"("CONSUMIDOR - CPF: 418.730.952-79\n" 1B 45 00)",
          R"(" - MarinaAlbuquerque Conceição" 1B 45 01 "\n NFC-e No 48213\n")",
          R"("00/e /Séri 2 :  :\nProtocolo de aut.: " 1B 45 00)",
          R"("202 4-03-14T18 :42:07-03:00" 1B 45 01 "\nData de aut.: " 1B 45 00)"}},
        {consumerWith({{"<CPF>41873095279", "<CPF>41873"}}),
         {R"("CONSUMIDOR - CPF: 418.73 .   -\n")"}},
        {consumerWithout("CPF", "<idEstrangeiro>AB123</idEstrangeiro>"),
         {R"("CONSUMIDOR NÃO IDENTIFICADO\n")"}},
        {consumerWithout("emit"), {R"("\nCNPJ   .   .   /    -\n,     \nDocumento Auxiliar")"}},
        {without(edited(document("autorizada-sem-consumidor"),
                        {{"<det nItem=\"1\">", "<det>"}, {"</det><det nItem=\"2\">", ""}}),
                 "det"),
         {R"("Vl Total\n" 1B 40)", small(""), small("Qtde. total de itens" + blanks(43) + "0")}},
        // A key too short is grouped from the end, then from the front.
        {consumerWith({{"131703519466\" versao", "13170351946\" versao"}}),
         {R"("Publica\n352 4039 7531 2460 0012 1650 0200 0048 2131 7035 1946 \n")",
          "1B 40 1B 61 01 1B 21 01 1B 74 10",
          R"("3524 0397 5312 4600 0121 6500 2000 0482 1317 0351 946" 1B 40)"}},
        // Amounts that are no numbers.
        {consumerWith({{"<vNF>173.24", "<vNF>abc"},
                       {"<vDesc>5.94</vDesc><vII>", "<vDesc>x</vDesc><vII>"},
                       {"<vPag>100.00", "<vPag>x"}}),
         {small("Qtde. total de itens" + blanks(43) + "6"),
          "1B 40 1B 21 01 1B 45 01 1B 74 10 \"Valor a Pagar R$:" + blanks(44) + "abc\\n\"",
          small("FORMA DE PAGAMENTO" + blanks(33) + "VALOR PAGO R$"), "1B 74 10",
          small("Dinheiro" + blanks(52) + "0,00")}},
        {consumerWith({{"<vFrete>0.00", "<vFrete>1000.00"},
                       {"<vSeg>0.00", "<vSeg>200.50"},
                       {"<vOutro>0.00", "<vOutro>34.06"},
                       {"<vNF>173.24", "<vNF>1407.80"}}),
         {small("Valor total R$" + blanks(44) + "179.18"),
          small("Acréscimos R$" + blanks(42) + "1.234,56"),
          small("Desconto R$" + blanks(49) + "5,94")}},
    };
    openModel("VANTA");
    for (const auto& row : rows)
        EXPECT_TRUE(contains(printed(row.xml), row.lines));
}

// What comes a second time, and what receipts do not show, changes nothing.
TEST_F(Danfe, LooksAtTheFirstOfEachGroup)
{
    openModel("VANTA");
    const std::string xml = document(consumerNote);
    const std::string expected = printed(xml);
    const std::string repeating = edited(
        xml,
        {{"</emit>", "</emit><emit><xNome>B</xNome></emit>"},
         {"</dest>", "<enderDest><xLgr>Rua A</xLgr></enderDest></dest><dest><CPF>1</CPF></dest>"},
         {"</total>", "</total><total><ICMSTot><vNF>9.99</vNF></ICMSTot></total>"},
         {"</infNFe>", "</infNFe><infNFe versao=\"3.10\"><ide><nNF>7</nNF></ide></infNFe>"},
         {"</protNFe>", "</protNFe><protNFe/>"}});
    EXPECT_TRUE(sameBytes(expected, printed(repeating)));
    // A key is 44 digits, whatever follows.
    EXPECT_TRUE(
        sameBytes(expected, printed(edited(xml, {{"519466\" versao", "519466777\" versao"}}))));
}

// The consumer's line decides: a short one gets a line of its own, a long one leaves no room.
TEST_F(Danfe, PlacesTheQrCodeByTheConsumersLine)
{
    openModel("VANTA");
    const auto withLineOf = [&](std::size_t chars) {
        const std::size_t labelAndMarks = std::string("CONSUMIDOR - CPF: ..-").size();
        return printed(consumerWith({{"41873095279", std::string(chars - labelAndMarks, '7')}}),
                       0x01);
    };
    const std::string pageMode = hex("1B 4C");
    EXPECT_TRUE(contains(withLineOf(39), {R"("7\n" 1B 45 00)"}));
    EXPECT_TRUE(contains(withLineOf(40), {R"("7" 1B 45 00)"}));
    EXPECT_NE(withLineOf(119).find(pageMode), std::string::npos);
    const std::string below = withLineOf(120);
    EXPECT_EQ(below.find(pageMode), std::string::npos);
    EXPECT_TRUE(contains(
        below, {R"(1B 40 0A 1B 61 01 1B 21 01 1B 45 01 1B 74 10 "CONSUMIDOR - CPF: 777.")"}));
    EXPECT_TRUE(
        contains(below, {R"("18:42:09\n" 1D 28 6B 03 00 31 43 04 1D 28 6B 03 00 31 45 30)"}));
}

TEST_F(Danfe, SizesThePageByTheQrText)
{
    openModel("VOLTA");
    const std::string text(300, 'q');
    EXPECT_TRUE(contains(printed(consumerWithout("qrCode", "<qrCode>" + text + "</qrCode>"), 0x01),
                         {"1B 4C 1B 57 00 00 00 00 E1 00 2C 01 18 1B 54 00 1B 24 00 00",
                          "1D 24 13 01 1D 28 6B 03 00 31 43 04 1D 28 6B 03 00 31 45 31",
                          "1D 28 6B 2F 01 31 50 30 \"" + text + "\" 1D 28 6B 03 00 31 51 30 0A",
                          "1B 57 E1 00 00 00 6E 01 2C 01 1B 24 00 00 1D 24 32 00"}));
}

TEST_F(Danfe, AlternatesTheCopiesOfContingencyNotesAcrossCalls)
{
    const std::string xml = document(contingencyNote);
    const auto copies = [&](int options) { // of each copy its first letter
        const std::string bytes = printed(xml, options);
        std::string letters;
        for (std::size_t at = 0; (at = bytes.find(" Via ", at)) != std::string::npos; at += 5)
            letters += bytes[at + 5];
        return letters;
    };
    constexpr int oneCopyWithoutItems = 0x201;
    constexpr int withoutItems = 0x01;
    openModel("VANTA");
    EXPECT_EQ(copies(oneCopyWithoutItems), "c"); // consumidor
    EXPECT_EQ(copies(oneCopyWithoutItems), "e"); // estabelecimento
    EXPECT_EQ(copies(oneCopyWithoutItems), "c");
    EXPECT_EQ(copies(withoutItems), "ec"); // from where the last call left off
}

// Hashes from sha1sum. Nothing stands for the environment, and where a state has two addresses it
// is the one of homologation.
TEST_F(Danfe, BuildsTheQrTextThatANoteLacks)
{
    const std::string key = "240397531246000121650020000482131703519466"; // behind the state
    const std::string address = "https://www.homologacao.nfce.fazenda.sp.gov.br/qrcode?p=";
    const struct {
        std::string xml;
        int cscId;
        const char* csc;
        std::string content;
    } rows[] = {
        {document(consumerNote), 1, "0123456789",
         address + "35" + key + "|2||1|8B36C3753572FE9AEDA616A4F8767C27F03BC8E4"},
        {document(contingencyNote), 7, "TOKEN",
         "http://www.fazenda.pr.gov.br/nfce/qrcode?p=41241196385274000204650100001200459336481208"
         "|2||29|1551.40|4b6d4e73335366787942397373676b6468666e46464f68434f36343d|7"
         "|B8C55FF77F41D41A380BFDFFFB8433D8E8F43D97"},
        // No address; no token.
        {consumerWith({{"Id=\"NFe35", "Id=\"NFe23"}}), 1, nullptr,
         "23" + key + "|2||1|A9E3C028D218CA164DD4933300BE0A3DB6EE19B3"},
        // A token of 3 characters in 5 bytes: the hash takes the first 3.
        {document(consumerNote), 1, "ÇÃO",
         address + "35" + key + "|2||1|E2129F224986AEF52526D11B3226D311BBAFCF49"},
    };
    openModel("VANTA");
    for (const auto& row : rows)
        EXPECT_TRUE(contains(printed(without(row.xml, "qrCode"), 0x201, row.cscId, row.csc),
                             {"31 50 30 \"" + row.content + "\" 1D 28 6B 03 00 31 51 30 0A"}));
}

TEST_F(Danfe, LeavesTracesOfTheReadingInTheLog)
{
    const auto step = [](const std::string& name) {
        return "INFO \n\n=========================\nTESTE " + name + std::string(57, '.') + '\n';
    };
    const std::string end =
        "INFO =========================TERMINO CONSTROI OBJ.......................\n";
    const auto traces = [&](const std::string& xml) {
        ImprimeXMLNFCe(xml.c_str(), 1, "CSC", 0x01);
        std::string lines;
        for (const std::string& line : data.takeLog())
            if (line.rfind("INFO", 0) == 0)
                lines += line;
        return lines;
    };
    openModel("VANTA");
    EXPECT_EQ(traces(document(consumerNote)),
              step("CASE2 OK") + step("CASE3 OK") + end + "INFO \x1E");
    EXPECT_EQ(traces(consumerWithout("urlChave")),
              step("CASE2 OK") + "INFO " + step("CASE3 FALSE") + end + "INFO \x04");
}

} // namespace
