#include "nfce_notes.h"

#include "test_files.h"

#include <filesystem>

namespace q7test
{

std::string document(const std::string& name)
{
    const std::string ownPath = std::string(Q7_TEST_DOCUMENTS) + '/' + name + ".xml";
    return std::filesystem::exists(ownPath) ? fileContent(ownPath) : exampleDocument(name);
}

std::string edited(std::string xml, const std::vector<Edit>& edits)
{
    for (const Edit& edit : edits) {
        const std::size_t at = xml.find(edit.from);
        EXPECT_NE(at, std::string::npos) << edit.from;
        xml.replace(std::min(at, xml.size()), edit.from.size(), edit.to);
    }
    return xml;
}

std::string without(std::string xml, const std::string& element, const std::string& instead)
{
    const std::string end = "</" + element + '>';
    const std::size_t begin = xml.find('<' + element + '>');
    EXPECT_NE(begin, std::string::npos) << element;
    return xml.replace(begin, xml.find(end, begin) + end.size() - begin, instead);
}

testing::AssertionResult contains(const std::string& bytes, const std::vector<std::string>& lines)
{
    const std::string part = encoded(lines);
    if (bytes.find(part) != std::string::npos)
        return testing::AssertionSuccess();
    return sameBytes(part, bytes) << "\nWhat is expected stands nowhere in what was received.";
}

void NfceTest::openModel(const std::string& model)
{
    PrinterScript script;
    script.model = model;
    openTcp(script);
}

std::string NfceTest::printed(const std::string& xml, int options, int cscId, const char* csc)
{
    EXPECT_EQ(0, ImprimeXMLNFCe(xml.c_str(), cscId, csc, options));
    return takeSent();
}

void NfceTest::expectRefused(const std::vector<Refusal>& rows)
{
    for (const Refusal& row : rows)
        EXPECT_EQ(row.result, ImprimeXMLNFCe(row.xml.c_str(), 1, row.csc, row.options)) << row.xml;
    for (const std::string& logged : data.takeLog())
        EXPECT_EQ(logged.find("RETORNO"), std::string::npos) << logged;
    EXPECT_EQ("", takeSent());
}

testing::AssertionResult ReceiptTest::isAsLaidOut()
{
    openModel(GetParam().model);
    return sameAsGolden("nfce/" + std::string(GetParam().name) + ".txt",
                        printed(document(GetParam().document), GetParam().options));
}

} // namespace q7test
