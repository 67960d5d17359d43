// Verdicts held against those of xmllint, on documents and on what mutations make of them.
#include "compiled_schema.h"
#include "program.h"
#include "temporary_folder.h"

#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <iterator>
#include <random>
#include <regex>
#include <set>

namespace
{

namespace fs = std::filesystem;

std::string fileContent(const fs::path& path)
{
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

class Mutations
{
public:
    Mutations(const std::string& document, unsigned seed) : m_document(document), m_random(seed)
    {
        static const std::regex tag("<[^?!][^>]*>");
        for (std::sregex_iterator found(document.begin(), document.end(), tag), end; found != end;
             ++found)
            m_tags.push_back({static_cast<std::size_t>(found->position()),
                              static_cast<std::size_t>(found->length())});
    }

    std::string next()
    {
        std::string made = m_document;
        const std::size_t number = below(m_tags.size() - 1);
        const Tag tag = m_tags[number];
        const std::size_t behind = tag.begin + tag.size;
        const std::size_t textSize = m_tags[number + 1].begin - behind;
        switch (below(10)) {
        case 0: // an element, or several and half of one
            return made.erase(tag.begin,
                              m_tags[std::min(number + 2, m_tags.size() - 1)].begin - tag.begin);
        case 1: // a tag
            return made.erase(tag.begin, tag.size);
        case 2: // an element twice
            return made.insert(behind, made.substr(tag.begin, tag.size + textSize) + "</" +
                                           made.substr(tag.begin + 1, tag.size - 1));
        case 3: // another text
            return made.replace(behind, textSize, textSize == 0 ? "7" : "");
        case 4:
            return textSize == 0 ? made : made.insert(behind + below(textSize), "0");
        case 5:
        case 6: // a digit, which most often conforms
            for (std::size_t at = behind + below(made.size() - behind); at < made.size(); ++at)
                if (made[at] >= '0' && made[at] <= '9') {
                    made[at] = static_cast<char>('0' + below(10));
                    break;
                }
            return made;
        case 7: // an attribute
            return made[behind - 2] == '/' || made[tag.begin + 1] == '/'
                       ? made
                       : made.insert(behind - 1, " a='1'");
        case 8: // a character
            made[behind + below(made.size() - behind)] = "<>&\"xA\xc3 "[below(8)];
            return made;
        default: // other things that XML has
            return made.insert(behind, m_other[below(std::size(m_other))]);
        }
    }

private:
    struct Tag {
        std::size_t begin;
        std::size_t size;
    };

    std::size_t below(std::size_t limit) { return m_random() % limit; }

    static constexpr const char* m_other[] = {
        "<!-- c -->", "<?p i?>",  "<![CDATA[1]]>",     "<x/>", "&#49;", "&amp;", "&no;", "\n",
        "text",       "\xc3\xa3", "<x xmlns='urn:x'/>"};
    const std::string m_document;
    std::vector<Tag> m_tags;
    std::mt19937 m_random;
};

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
        Mutations mutations(document, ++seed);
        for (unsigned i = 0; i < mutationsOfEach; ++i)
            add(mutations.next());
    }
    const std::set<std::string> conforming = conformingByXmllint(schemaFile, files);
    const q7::CompiledSchema schema(schemaFile);
    EXPECT_TRUE(schema.faults().empty());
    for (const std::string& file : files) {
        const q7::SchemaFaults faults = schema.check(fileContent(file));
        EXPECT_EQ(faults.empty(), conforming.count(file) == 1)
            << (faults.empty() ? "" : faults.front().description) << '\n'
            << fileContent(file);
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
    const fs::path data = Q7_SAMPLE_DATA;
    if (!fs::exists(data / "xsd"))
        GTEST_SKIP() << "no official schemas in " << data / "xsd";
    std::vector<std::string> notes;
    std::vector<std::string> bareNotes;
    for (const char* folder : {"nfce", "nfce-current"})
        for (const fs::directory_entry& entry : fs::directory_iterator(data / folder)) {
            const std::string document = fileContent(entry.path());
            (document.find("<nfeProc") == std::string::npos ? bareNotes : notes)
                .push_back(document);
        }
    for (std::vector<std::string>* documents : {&notes, &bareNotes})
        std::sort(documents->begin(), documents->end()); // the same order everywhere
    expectVerdictsOfXmllint(data / "xsd/NFe/4.00/procNFe_v4.00.xsd", notes, 20);
    expectVerdictsOfXmllint(data / "xsd/NFe/4.00/nfe_v4.00.xsd", bareNotes, 20);
    // The other way round none conforms.
    for (const std::string& note : notes)
        EXPECT_FALSE(q7::CompiledSchema(data / "xsd/NFe/4.00/nfe_v4.00.xsd").check(note).empty());
}

} // namespace
