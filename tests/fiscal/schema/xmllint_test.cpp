// Verdicts held against those of xmllint, on documents and on what mutations make of them.
#include "compiled_schema.h"
#include "program.h"
#include "temporary_folder.h"
#include "test_files.h"
#include "xml_mutations.h"

#include <algorithm>
#include <filesystem>
#include <gtest/gtest.h>
#include <set>

namespace
{

namespace fs = std::filesystem;

// The files that conform, by xmllint.
std::set<std::string> conformingByXmllint(const fs::path& schema,
                                          const std::vector<std::string>& files)
{
    std::vector<std::string> command{Q7_XMLLINT, "--nonet", "--noout", "--schema", schema};
    command.insert(command.end(), files.begin(), files.end());
    const std::string output = q7test::runProgram(command).output;
    std::set<std::string> conforming;
    for (const std::string& file : files)
        if (('\n' + output).find('\n' + file + " validates\n") != std::string::npos)
            conforming.insert(file);
    return conforming;
}

void expectVerdictsOfXmllint(const fs::path& schemaFile, const std::vector<std::string>& documents,
                             unsigned mutationsOfEach)
{
    const q7test::TemporaryFolder folder;
    std::vector<std::string> files;
    const auto add = [&](const std::string& document) {
        const std::string name = std::to_string(files.size()) + ".xml";
        folder.write(name, document);
        files.push_back(folder.path() + '/' + name);
    };
    unsigned seed = 0;
    for (const std::string& document : documents) {
        add(document);
        q7test::XmlMutations mutations(document, ++seed);
        for (unsigned i = 0; i < mutationsOfEach; ++i)
            add(mutations.next());
    }
    const std::set<std::string> conforming = conformingByXmllint(schemaFile, files);
    const q7::CompiledSchema schema(schemaFile);
    EXPECT_TRUE(schema.faults().empty());
    for (const std::string& file : files) {
        const q7::SchemaFaults faults = schema.check(q7test::fileContent(file));
        EXPECT_EQ(faults.empty(), conforming.count(file) == 1)
            << (faults.empty() ? "" : faults.front().description) << '\n'
            << q7test::fileContent(file);
    }
    // There are enough of both.
    EXPECT_GT(conforming.size(), files.size() / 10);
    EXPECT_LT(conforming.size(), files.size() * 9 / 10);
}

TEST(Xmllint, AgreesOnMutatedDocuments)
{
    const q7test::TemporaryFolder folder;
    folder.write(
        "main.xsd",
        "<xs:schema xmlns:xs='http://www.w3.org/2001/XMLSchema' targetNamespace='urn:m' "
        "xmlns='urn:m' xmlns:s='urn:s' elementFormDefault='qualified'><xs:include "
        "schemaLocation='types.xsd'/><xs:import namespace='urn:s' schemaLocation='s.xsd'/>"
        "<xs:element name='note'><xs:complexType><xs:sequence><xs:element name='number' "
        "type='Digits'/><xs:element name='item' maxOccurs='3'><xs:complexType><xs:choice>"
        "<xs:element name='code' type='xs:int'/><xs:element name='name'/></xs:choice>"
        "<xs:attribute name='n' type='xs:int' use='required'/></xs:complexType>"
        "</xs:element><xs:element ref='s:seal' minOccurs='0'/></xs:sequence>"
        "<xs:attribute name='Id' type='xs:ID'/></xs:complexType></xs:element></xs:schema>");
    folder.write("types.xsd", "<xs:schema xmlns:xs='http://www.w3.org/2001/XMLSchema'>"
                              "<xs:simpleType name='Digits'><xs:restriction base='xs:string'>"
                              "<xs:pattern value='[0-9]{1,3}'/></xs:restriction></xs:simpleType>"
                              "</xs:schema>");
    folder.write("s.xsd", "<xs:schema xmlns:xs='http://www.w3.org/2001/XMLSchema' "
                          "targetNamespace='urn:s'><xs:element name='seal' "
                          "type='xs:base64Binary'/></xs:schema>");
    expectVerdictsOfXmllint(
        folder.path() + "/main.xsd",
        {"<?xml version='1.0'?>\n<note xmlns='urn:m' Id='a1'><number>12</number><item n='1'>"
         "<code>7</code></item><item n='2'><name>P\xc3\xa3o &amp; \xc3\xa1gua</name></item>"
         "<s:seal xmlns:s='urn:s'>QUJD</s:seal></note>",
         "<note xmlns='urn:m'><number>1</number><item n='1'><code>7</code></item></note>"},
        150);
}

TEST(Xmllint, AgreesOnTheSamplesAndTheirMutations)
{
    const fs::path schemas = q7test::sampleData("xsd/NFe/4.00");
    if (schemas.empty())
        GTEST_SKIP() << "no official schemas in the sample data";
    std::vector<std::string> notes;
    std::vector<std::string> bareNotes;
    for (const char* folder : {"nfce", "nfce-current"})
        for (const fs::directory_entry& entry :
             fs::directory_iterator(q7test::sampleData(folder))) {
            const std::string document = q7test::fileContent(entry.path());
            (document.find("<nfeProc") == std::string::npos ? bareNotes : notes)
                .push_back(document);
        }
    for (std::vector<std::string>* documents : {&notes, &bareNotes})
        std::sort(documents->begin(), documents->end()); // the same order everywhere
    expectVerdictsOfXmllint(schemas / "procNFe_v4.00.xsd", notes, 20);
    expectVerdictsOfXmllint(schemas / "nfe_v4.00.xsd", bareNotes, 20);
    // The other way round none conforms.
    for (const std::string& note : notes)
        EXPECT_FALSE(q7::CompiledSchema(schemas / "nfe_v4.00.xsd").check(note).empty());
}

} // namespace
