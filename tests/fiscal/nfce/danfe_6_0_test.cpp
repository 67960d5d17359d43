// DANFE NFC-e receipts under the manual's version 6.0: as the printer gets them, and on its paper.
#include "drawn_receipt.h"
#include "nfce_notes.h"

#include <algorithm>

using namespace q7test;

namespace
{

constexpr char pixNote[] = "pix-e-dinheiro";
constexpr char contingencyNote[] = "contingencia-qr3";
constexpr char simplifiedNote[] = "simplified-type-2";
const char* const models[] = {"VANTA",    "VESPA", "VOLTA", "ORLA-K", "PINTA", "RANZA",
                              "RANZAPRO", "SORBE", "SALVI", "DUNEL",  "TESMO"};

std::string pixWith(const std::vector<Edit>& edits)
{
    return edited(document(pixNote), edits);
}

using Danfe6_0 = NfceTest;

using WholeReceipt6_0 = ReceiptTest;

TEST_P(WholeReceipt6_0, IsAsLaidOut)
{
    EXPECT_TRUE(isAsLaidOut());
}

constexpr Receipt receipts[] = {
    {"6_0_pix_and_cash_vanta", pixNote, "VANTA", 0xC0},
    {"6_0_contingency_qr3_orla_k", contingencyNote, "ORLA-K", 0x01}, // pending: keeps its items
    {"6_0_simplified_sorbe", simplifiedNote, "SORBE", 0x81},
};
INSTANTIATE_TEST_SUITE_P(Nfce, WholeReceipt6_0, testing::ValuesIn(receipts),
                         [](const auto& row) { return std::string(row.param.name); });

/** A label at the left and a value at the right margin of VANTA's lines. */
std::string line(const std::string& label, const std::string& value)
{
    constexpr std::size_t columns = 64;
    std::size_t chars = 0; // of the label, of which a UTF-8 byte is not always one
    for (const char c : label)
        chars += (static_cast<unsigned char>(c) & 0xC0U) != 0x80;
    return label + std::string(columns - chars - value.size(), ' ') + value;
}

struct Note {
    const char* name;
    std::string xml;
    int options;
    std::vector<std::string> lines;  // parts of the receipt's text, one behind the other
    std::vector<std::string> absent; // what is nowhere in it
};

class NoteOnPaper : public Danfe6_0, public testing::WithParamInterface<Note>
{
};

TEST_P(NoteOnPaper, ReadsAsTheRulesSay)
{
    openModel("VANTA");
    const auto copies = drawn(printed(GetParam().xml, GetParam().options), "VANTA");
    ASSERT_FALSE(copies.empty());
    const std::string& text = copies.front().text;
    std::size_t from = 0;
    for (const std::string& part : GetParam().lines) {
        const std::size_t at = text.find(part, from);
        ASSERT_NE(at, std::string::npos) << part << "\nis not where it should be in\n" << text;
        from = at + part.size();
    }
    for (const std::string& part : GetParam().absent)
        EXPECT_EQ(text.find(part), std::string::npos) << part << "\nis in\n" << text;
    EXPECT_EQ(copies.front().losses, std::vector<std::string>());
}

const std::string words = "palavras que enchem mais de uma linha e quebram entre elas sempre";

Note paidInEveryWay()
{
    const std::pair<std::string, const char*> names[] = {{"01", "Dinheiro"},
                                                         {"02", "Cheque"},
                                                         {"03", "Cart\u00E3o de Cr\u00E9dito"},
                                                         {"04", "Cart\u00E3o de D\u00E9bito"},
                                                         {"05", "Cart\u00E3o da Loja"},
                                                         {"10", "Vale Alimenta\u00E7\u00E3o"},
                                                         {"11", "Vale Refei\u00E7\u00E3o"},
                                                         {"12", "Vale Presente"},
                                                         {"13", "Vale Combust\u00EDvel"},
                                                         {"14", "Duplicata Mercantil"},
                                                         {"15", "Boleto Banc\u00E1rio"},
                                                         {"16", "Dep\u00F3sito Banc\u00E1rio"},
                                                         {"17", "PIX"},
                                                         {"18", "Transfer\u00EAncia Banc\u00E1ria"},
                                                         {"19", "Programa de Fidelidade"},
                                                         {"20", "PIX"},
                                                         {"21", "Cr\u00E9dito em Loja"},
                                                         {"22", "Pagamento Eletr\u00F4nico"},
                                                         {"90", "Sem Pagamento"},
                                                         {"91", "Pagamento Posterior"},
                                                         {"23", "Outros (23)"},
                                                         {"99", "Outros"}};
    std::string payments;
    std::vector<std::string> lines;
    const auto add = [&](const std::string& fields, const std::string& text) {
        payments += "<detPag>" + fields + "<vPag>1234.50</vPag></detPag>";
        lines.push_back('\n' + text);
    };
    for (const auto& [method, name] : names)
        add("<tPag>" + method + "</tPag>", line(name, "1.234,50"));
    add("<tPag>99</tPag><xPag>Ficha|do\nclube</xPag>", line("Ficha|do clube", "1.234,50"));
    const std::string longName = words.substr(0, 60);
    add("<tPag>99</tPag><xPag>" + longName + "</xPag>", longName + '\n' + line("", "1.234,50"));
    return {
        "Payments", without(document(pixNote), "pag", "<pag>" + payments + "</pag>"), 0, lines, {}};
}

std::string inTestEnvironment(const std::string& xml)
{
    return edited(xml, {{"<tpAmb>1", "<tpAmb>2"}});
}

std::vector<Note> notes()
{
    const std::string pix = document(pixNote);
    return {
        paidInEveryWay(),
        // Of what a note lacks, nothing is printed; nor of an environment that is asked for.
        {"NoteOfAPersonThatLacksMuch",
         edited(without(without(pix, "dest"), "nProt"),
                {{"<emit><CNPJ>97531246000121</CNPJ>", "<emit><CPF>41873095279</CPF>"},
                 {"<vTroco>5.71</vTroco>", ""},
                 {"<vNF>74.29</vNF><vTotTrib>13.55</vTotTrib>", "<vNF>74.29</vNF>"}}),
         0x90,
         {"CPF 418.730.952-79 IE 146820397117\n", line("Valor total R$", "74,29"),
          line("FORMA DE PAGAMENTO", "VALOR PAGO R$"), line("PIX", "50,00"),
          line("Dinheiro", "30,00"), "CONSUMIDOR N\u00C3O IDENTIFICADO\n", "03/10/2026 18:42:07\n"},
         {"CNPJ", "Valor a Pagar", "Acr\u00E9scimos", "Desconto", "Troco", "Protocolo", "CONTING",
          "HOMOLOGA", "Tributos"}},
        {"IssuerWithLetters",
         document("alphanumeric-cnpj"),
         0,
         {"CNPJ 12.ABC.345/01DE-35\n", "\n",
          "3526 1012 ABC3 4501 DE35 6500 2000 0500 0411 0000 0047"},
         {}},
        {"TotalsWithAll",
         pixWith({{"<vFrete>0.00", "<vFrete>1000.00"},
                  {"<vSeg>0.00", "<vSeg>200.50"},
                  {"<vDesc>0.00", "<vDesc>5.00"},
                  {"<vOutro>0.00", "<vOutro>34.06"},
                  {"<vNF>74.29</vNF><vTotTrib>13.55", "<vNF>1303.85</vNF><vTotTrib>1213.55"}}),
         0,
         {line("Valor total R$", "74,29"), line("Acr\u00E9scimos R$", "1.234,56"),
          line("Desconto R$", "5,00"), line("Valor a Pagar R$", "1.303,85"),
          line("FORMA DE PAGAMENTO", "VALOR PAGO R$"),
          "Tributos Totais Incidentes(Lei Federal 12.741/2012): R$1.213,55\n"},
         {}},
        {"ConsumerAbroad",
         document("test-environment-foreigner"),
         0,
         {"CONSUMIDOR Id. Estrangeiro: YA1234567\n", "S\u00F8ren \u00C5ngstr\u00F6m",
          "EMITIDA EM AMBIENTE DE HOMOLOGA\u00C7\u00C3O - SEM VALOR FISCAL\n"},
         {"IDENTIFICADO"}},
        {"ConsumersOwnAddressAndCharactersThatPrintersLack",
         pixWith(
             {{"<indIEDest>", "<xNome>\u0141na | Filhos &lt;SA&gt;\n\u2013 "
                              "\U0001F600</xNome><enderDest><xLgr>Rua A</xLgr>"
                              "<nro>7</nro><xBairro>Centro</xBairro><xMun>Santos</xMun><UF>SP</UF>"
                              "</enderDest><indIEDest>"}}),
         0,
         {"?na | Filhos <SA> ? ??\n", "Rua A 7 Centro Santos SP\n",
          "NFC-e No 50001 S\u00E9rie 002"},
         {}},
        {"PlaceOfDelivery",
         pixWith({{"</dest>", "<enderDest><xLgr>Rua A</xLgr></enderDest></dest><entrega><xLgr>Rua "
                              "B</xLgr><nro>9</nro><xCpl>Fundos</xCpl></entrega>"}}),
         0,
         {"Rua B 9 Fundos\n"},
         {"Rua A"}},
        {"LongNameBesideTheQrCode",
         pixWith({{"<indIEDest>", "<xNome>" + words + "</xNome><indIEDest>"}}),
         0,
         {"palavras que enchem mais de uma linha\n", "e quebram entre elas sempre\n", "NFC-e No"},
         {}},
        {"ProtocolOf17DigitsWithItsTimeInUtc",
         pixWith({{"<nProt>135260007731894", "<nProt>13526000773189412"},
                  {"<dhRecbto>2026-10-03T18:42:09-03:00", "<dhRecbto>2026-10-03T21:42:09+00:00"}}),
         0,
         {"03/10/2026 18:42:07\n", "Protocolo de autoriza\u00E7\u00E3o:\n",
          "13526000773189412 03/10/2026 18:42:09\n"},
         {}},
        {"MessagesInTheTestEnvironment",
         edited(inTestEnvironment(pix),
                {{"</infNFe>", "<infAdic><infAdFisco>Mensagem do fisco</infAdFisco><infCpl>Volte "
                               "sempre\n" +
                                   words + "</infCpl></infAdic></infNFe>"},
                 {"</xMotivo>", "</xMotivo><cMsg>1</cMsg><xMsg>Mensagem do portal</xMsg>"}}),
         0,
         {"135 2600077318 94", "Mensagem do fisco\n", "Mensagem do portal\n",
          "EMITIDA EM AMBIENTE DE HOMOLOGA\u00C7\u00C3O - SEM VALOR FISCAL\n", "Tributos",
          "Volte sempre\n", "palavras que enchem mais de uma linha e quebram entre elas\n",
          "sempre\n"},
         {}},
        {"AuthorisedSince",
         document("contingency-authorised"),
         0,
         {"03/10/2026 18:42:07\n", "Protocolo de autoriza\u00E7\u00E3o:\n"},
         {"CONTING", "Pendente", "Via"}},
        {"SimplifiedType2WithoutTheTaxes",
         edited(without(document(simplifiedNote), "IBSCBSTot"),
                {{"<vIS>1.25", "<vIS>0.00"}, {"<vTroco>0.00</vTroco>", ""}}),
         0,
         {"DANFE Simplificado Tipo 2\n", line("Troco R$", "0,00")},
         {"(+)"}},
        {"DiscountAloneAndTaxesOfAnNfce",
         pixWith({{"<vDesc>0.00", "<vDesc>5.00"},
                  {"</ICMSTot>", "</ICMSTot><ISTot><vIS>1.25</vIS></ISTot><IBSCBSTot/>"}}),
         0,
         {line("Valor total R$", "79,29"), line("Desconto R$", "5,00"),
          line("Valor a Pagar R$", "74,29")},
         {"(+)", "Acr\u00E9scimos"}},
        {"HeadingBesideTheLogo",
         pixWith({{"<xNome>MERCADO TR\u00CAS COQUEIROS LTDA", "<xNome>TR\u00CAS " + words},
                  {"<xLgr>Rua das Paineiras", "<xLgr>" + words + ' ' + words + ' ' + words}}),
         0x88,
         {"TR\u00CAS palavras que enchem mais de uma\n", "linha e quebram entre elas sempre\n",
          "CNPJ 97.531.246/0001-21 IE 146820397117\n",
          "sempre, 415 Loja 2 Vila Esperan\u00E7a S\u00E3o Paulo SP\n", "Documento Auxiliar"},
         {}},
    };
}
INSTANTIATE_TEST_SUITE_P(Nfce, NoteOnPaper, testing::ValuesIn(notes()),
                         [](const auto& row) { return std::string(row.param.name); });

/** A note's QR text. */
std::string qrTextOf(const std::string& xml)
{
    const std::string begin = "<qrCode><![CDATA[";
    const std::size_t at = xml.find(begin) + begin.size();
    return xml.substr(at, xml.find("]]>", at) - at);
}

std::string withQrText(const std::string& xml, const std::string& text)
{
    return without(xml, "qrCode", "<qrCode><![CDATA[" + text + "]]></qrCode>");
}

/** What a note's text of that size can look like. */
std::string qrTextOfSize(std::size_t size)
{
    const std::string text = qrTextOf(document(pixNote)) + '|';
    return text + std::string(size - text.size(), 'x');
}

class EveryModel : public Danfe6_0, public testing::WithParamInterface<const char*>
{
protected:
    /** Prints and draws a note, of which every copy must be whole. */
    std::vector<DrawnReceipt> copiesOf(const std::string& xml, int options)
    {
        const std::string bytes = printed(xml, options);
        const std::string qrText = qrTextOf(xml);
        const std::vector<DrawnReceipt> copies = drawn(bytes, GetParam());
        for (const DrawnReceipt& copy : copies) {
            EXPECT_EQ(copy.losses, std::vector<std::string>()) << copy.text;
            EXPECT_EQ(copy.symbols, std::vector<std::string>{"QR-Code:" + qrText}) << copy.text;
        }
        EXPECT_GE(smallestQrSide(qrText) * moduleDotsIn(bytes), 176) << qrText;
        return copies;
    }

    int moduleDotsIn(const std::string& bytes) const
    {
        const std::string model = GetParam();
        const std::string head = model == "SORBE"    ? hex("1D 6B 51 00")
                                 : model == "ORLA-K" ? hex("1D 6F 00")
                                                     : hex("1D 28 6B 03 00 31 43");
        const int size = bytes[bytes.find(head) + head.size()];
        return model == "SORBE" ? size / 2 : size;
    }
};

TEST_P(EveryModel, PrintsEveryNoteWhole)
{
    openModel(GetParam());
    const std::string pix = document(pixNote);
    const std::string longText(60, 'm');
    const std::string crowded =
        edited(pix, {{"<xNome>MERCADO TR\u00CAS COQUEIROS LTDA", "<xNome>" + longText},
                     {"<xLgr>Rua das Paineiras", "<xLgr>" + longText},
                     {"<xCpl>Loja 2", "<xCpl>" + longText},
                     {"<indIEDest>", "<xNome>" + longText + "</xNome><enderDest><xLgr>" + longText +
                                         "</xLgr><nro>" + longText + "</nro><xCpl>" + longText +
                                         "</xCpl><xBairro>" + longText + "</xBairro><xMun>" +
                                         longText + "</xMun><UF>SP</UF></enderDest><indIEDest>"},
                     {"<xProd>ARROZ", "<xProd>" + longText + longText},
                     {"</infNFe>", "<infAdic><infCpl>" + std::string(5000, 'w') +
                                       "</infCpl></infAdic></infNFe>"}});
    const std::vector<std::string> notes = {pix,
                                            document(contingencyNote),
                                            document(simplifiedNote),
                                            document("alphanumeric-cnpj"),
                                            document("contingency-authorised"),
                                            document("test-environment-foreigner"),
                                            crowded};
    for (const std::string& note : notes)
        for (const int options : {0, 0x1DA})
            EXPECT_EQ(copiesOf(note, options).size(), note == notes[1] ? 2U : 1U);
    // Versions and dialects change their ways at these sizes.
    for (const std::size_t size :
         {100, 109, 122, 180, 181, 213, 214, 231, 252, 253, 255, 256, 412, 413, 997, 998})
        EXPECT_EQ(copiesOf(withQrText(pix, qrTextOfSize(size)), 0x01).size(), 1U);
}

INSTANTIATE_TEST_SUITE_P(Nfce, EveryModel, testing::ValuesIn(models), [](const auto& row) {
    std::string name = row.param;
    name.erase(std::remove(name.begin(), name.end(), '-'), name.end());
    return name;
});

TEST_F(Danfe6_0, LabelsEveryCopyByItself)
{
    const std::string note = document(contingencyNote);
    // With its QR code below the text, and beside it.
    for (const std::string& xml : {note, withQrText(note, qrTextOfSize(200))}) {
        const auto labels = [&](int options) { // of each copy whether it is the establishment's
            std::string letters;
            for (const DrawnReceipt& copy : drawn(printed(xml, options), "VANTA"))
                letters +=
                    copy.text.find("Via do Estabelecimento\n") == std::string::npos ? 'c' : 'e';
            return letters;
        };
        constexpr int singleCopy = 0x200;
        openModel("VANTA");
        EXPECT_EQ(labels(0), "ce");
        EXPECT_EQ(labels(singleCopy), "c");
        EXPECT_EQ(labels(0), "ce");
        FechaConexaoImpressora();
        openModel("VANTA");
        EXPECT_EQ(labels(singleCopy), "c");
        EXPECT_EQ(labels(0), "ce");
        FechaConexaoImpressora();
    }
}

// Hashes from sha1sum.
TEST_F(Danfe6_0, BuildsTheQrTextThatANoteLacks)
{
    const std::string pix = without(document(pixNote), "qrCode");
    const std::string pending = without(document(contingencyNote), "qrCode");
    const std::string key = "35261097531246000121650020000500011100000010";
    const struct {
        std::string xml;
        int cscId;
        const char* csc;
        std::string content;
    } rows[] = {
        {pix, 1, "", "https://www.nfce.fazenda.sp.gov.br/qrcode?p=" + key + "|3|1"},
        {inTestEnvironment(pix), 1, "TOKEN",
         "https://www.homologacao.nfce.fazenda.sp.gov.br/qrcode?p=" + key + "|3|2"},
        {without(document("contingency-authorised"), "qrCode"), 1, "TOKEN",
         "https://www.nfce.fazenda.sp.gov.br/"
         "qrcode?p=35261097531246000121650020000500039100000036|3|1"},
        {pending, 7, "TOKEN",
         "https://www.nfce.fazenda.sp.gov.br/"
         "qrcode?p=35261097531246000121650020000500029100000020|2|1|03|74.29|"
         "6252416f6a31497068635237526e384a30317a6876454d54356d513d|7|"
         "EEBC0D9EF3507E820369012B03EC7BBA653AC810"},
    };
    openModel("VANTA");
    for (const auto& row : rows)
        EXPECT_EQ(drawn(printed(row.xml, 0x200, row.cscId, row.csc), "VANTA").front().symbols,
                  std::vector<std::string>{"QR-Code:" + row.content});
}

TEST_F(Danfe6_0, OfARefusedNoteIsNotPrinted)
{
    const std::string pix = document(pixNote);
    const std::string lacking = without(pix, "qrCode");
    const std::string pending = without(document(contingencyNote), "qrCode");
    openModel("VANTA");
    expectRefused({
        {pix, -104, 65536},
        {edited(pix, {{"10\" versao=\"4.00\"", "10\""}}), -102},
        {edited(pix, {{"10\" versao=\"4.00\"", "10\" versao=\"3.10\""}}), -101},
        {edited(document(simplifiedNote), {{"<tpImp>6", "<tpImp>1"}}), -105},
        {without(edited(pix, {{"<mod>65", "<mod>55"}}), "urlChave"), -105},
        {without(pix, "urlChave"), -103},
        {pending, -106, 0, ""},
        {without(pending, "DigestValue"), -106},
        {without(lacking, "tpAmb"), -106},
        {edited(lacking, {{"Id=\"NFe35", "Id=\"NFe23"}}), -106}, // no address
        {edited(lacking, {{"Id=\"NFe35", "Id=\"NFe3"}}), -106},
        {withQrText(pix, qrTextOfSize(2332)), -106},
    });
}

TEST_F(Danfe6_0, WarnsOfADeliveryToNobody)
{
    const std::string delivered = pixWith({{"<indPres>1", "<indPres>4"}});
    const std::string known =
        edited(delivered, {{"<indIEDest>", "<xNome>Ana</xNome><enderDest><xLgr>Rua A</xLgr>"
                                           "</enderDest><indIEDest>"}});
    const auto warnings = [&](const std::string& xml) {
        data.takeLog();
        printed(xml, 0x01);
        const std::vector<std::string> log = data.takeLog();
        return std::count_if(log.begin(), log.end(), [](const std::string& logged) {
            return logged.find("INFO NFC-e COM ENTREGA") == 0;
        });
    };
    openModel("VANTA");
    EXPECT_EQ(warnings(delivered), 1);
    EXPECT_EQ(warnings(known), 0);
    EXPECT_EQ(warnings(document(pixNote)), 0);
}

} // namespace
