// Documents against schemas: hand-written ones here, the official ones where they are at hand.
#include "q7_impressora.h"
#include "temporary_folder.h"
#include "test_files.h"
#include "xsd_validator.h"

#include <QString>
#include <filesystem>
#include <gtest/gtest.h>
#include <libxml/parser.h>
#include <malloc.h>
#include <sys/stat.h>

using q7::validateXsd;

namespace
{

/** A data folder whose configuration names it as the schemas' folder too. */
class Schemas : public q7test::DataFolder
{
public:
    Schemas() { useFolder(path() + '/'); }

    void useFolder(const std::string& folder)
    {
        write("q7_conf.ini", "[configuracao_impressora]\ncaminho_xsd=" + folder + "\n");
    }
    void add(const std::string& file, const std::string& content)
    {
        std::filesystem::create_directories(
            std::filesystem::path(path() + '/' + file).parent_path());
        write(file, content);
    }
    std::string loggedLine()
    {
        const std::vector<std::string> lines = takeLog();
        return lines.size() == 1 ? lines.front() : std::to_string(lines.size()) + " lines";
    }
};

std::string schemaOf(const std::string& content)
{
    return "<xs:schema xmlns:xs='http://www.w3.org/2001/XMLSchema'>" + content + "</xs:schema>";
}

// "r" holds numbers, 1 to 102 "n".
const std::string numbersSchema = schemaOf("<xs:element name='r'><xs:complexType><xs:sequence>"
                                           "<xs:element name='n' type='xs:int' maxOccurs=\"102\"/>"
                                           "</xs:sequence></xs:complexType></xs:element>");

constexpr char saleSchema[] = "xsd/SAT/XML_SAT.xsd";

TEST(XsdValidator, TakesTheSchemaOfTheKind)
{
    const struct {
        int kind;
        int version;
        const char* file;
    } rows[] = {{1, 0, saleSchema},
                {2, 1, "xsd/SAT/XML_SAT_Canc.xsd"},
                {3, 1, "xsd/NFe/3.10/procNFe_v3.10.xsd"},
                {3, 0, "xsd/NFe/3.10/nfe_v3.10.xsd"},
                {4, 1, "xsd/NFe/4.00/procNFe_v4.00.xsd"},
                {4, 2, "xsd/NFe/4.00/nfe_v4.00.xsd"},
                {5, 0, "xsd/SAT/XML_SAT_ENT.xsd"},
                {6, 1, "xsd/SAT/XML_SAT_Canc_ENT.xsd"}};
    Schemas schemas;
    for (const auto& row : rows) {
        EXPECT_EQ(validateXsd("<r><n>1</n></r>", row.kind, row.version), -72) << row.file;
        EXPECT_EQ(schemas.loggedLine(), "INFO XSD NAO ENCONTRADO. COD:-72");
        schemas.add(row.file, numbersSchema);
        EXPECT_EQ(validateXsd("<r><n>1</n></r>", row.kind, row.version), 0) << row.file;
        EXPECT_EQ(schemas.loggedLine(), "INFO SUCESSO");
    }
}

// The descriptions are the engine's own.
TEST(XsdValidator, LogsTheLastFaultWithItsLine)
{
    const struct {
        std::string schema;
        QByteArray document;
        std::string logged; // behind the code
    } rows[] = {
        {numbersSchema, "<r>\n<n>1</n>\n<m/></r>",
         "Element 'm': This element is not expected. (linha 3)"},
        {numbersSchema, "<r><n>&lt;b&gt;\n</n>\n<n>2</n>\n<n>x</n></r>",
         "Element 'n': 'x' is not a valid value of the atomic type 'xs:int'. (linha 4)"},
        {numbersSchema, "<r><n>1\n2</n></r>",
         "Element 'n': '1 2' is not a valid value of the atomic type 'xs:int'. (linha 1)"},
        {numbersSchema, "<r>\n<n></r>", "Premature end of data in tag r line 1 (linha 2)"},
        {numbersSchema, "", "Document is empty (linha 1)"},
        {numbersSchema, "<r>" + QByteArray("\n<n>1</n>").repeated(103) + "</r>",
         "Element 'n': This element is not expected. (linha 104)"},
        {schemaOf("<xs:element name='r'><xs:complexType><xs:sequence>"
                  "<xs:any processContents='skip'/></xs:sequence></xs:complexType></xs:element>"),
         QByteArray("<r>\n").repeated(100000) + QByteArray("</r>").repeated(100000),
         "Excessive depth in document: 256 use XML_PARSE_HUGE option (linha 258)"},
        {schemaOf("<xs:element name='r'/>"), "\n<!DOCTYPE r>\n<r/>",
         "A document type declaration is not allowed. (linha 2)"},
        {numbersSchema, "<?xml version='1.0' encoding='klingon'?><r><n>1</n></r>",
         "The text is not in the encoding that it declares. (linha 1)"},
        {schemaOf("\n<xs:element name='r' type='T'/>"), "<r/>",
         "element decl. 'r', attribute 'type': The QName value 'T' does not resolve to a(n) type "
         "definition. (linha 2)"},
        {"hello", "<r/>", "Start tag expected, '<' not found (linha 1)"},
        {"<!DOCTYPE s [\n<!ENTITY e SYSTEM '/etc/passwd'>]><s>&e;</s>", "<r/>",
         "An external entity is not allowed. (linha 2)"},
    };
    Schemas schemas;
    for (const auto& row : rows) {
        schemas.add(saleSchema, row.schema);
        EXPECT_EQ(validateXsd(row.document, 1, 0), -71);
        EXPECT_EQ(schemas.loggedLine(), "INFO ERRO XSD. COD:-71 " + row.logged);
    }
}

TEST(XsdValidator, TellsEveryFaultWithWhatWasExpected)
{
    Schemas schemas;
    schemas.add(saleSchema,
                "<xs:schema xmlns:xs='http://www.w3.org/2001/XMLSchema' targetNamespace='urn:t' "
                "xmlns='urn:t' elementFormDefault='qualified'><xs:simpleType name='Key'>"
                "<xs:restriction base='xs:string'><xs:pattern value='CFe[0-9]{3}'/>"
                "</xs:restriction></xs:simpleType><xs:simpleType name='State'><xs:restriction "
                "base='xs:string'><xs:enumeration value='PR'/><xs:enumeration value='SP'/>"
                "</xs:restriction></xs:simpleType><xs:element name='r'><xs:complexType>"
                "<xs:sequence><xs:element name='uf' type='State'/><xs:element name='n' "
                "maxOccurs='2'><xs:simpleType><xs:restriction base='xs:string'><xs:maxLength "
                "value='3'/></xs:restriction></xs:simpleType></xs:element><xs:choice>"
                "<xs:element name='a'/><xs:element name='b'/></xs:choice></xs:sequence>"
                "<xs:attribute name='Id' type='Key' use='required'/><xs:attribute name='v' "
                "fixed='4.00'/></xs:complexType></xs:element></xs:schema>");
    const QByteArray document = "<r xmlns='urn:t' Id='CFe12' v='3.10'>\n<uf>XX</uf>\n"
                                "<n>1234</n>\n<n/>\n<c>valor do item</c></r>";
    const struct {
        long line;
        const char* place;
        std::vector<std::string> expected;
    } rows[] = {
        {1, "r/@Id", {"CFe[0-9]{3}"}}, {1, "r/@v", {"4.00"}},
        {2, "r/uf", {"PR", "SP"}},     {3, "r/n", {"3"}},
        {5, "r/c", {"a", "b"}},
    };
    const q7::XsdReport report =
        q7::checkXsd(document, 1, 0, QString::fromStdString(schemas.path() + '/'));
    EXPECT_EQ(report.result, -71);
    ASSERT_EQ(report.faults.size(), std::size(rows));
    for (std::size_t i = 0; i < std::size(rows); ++i) {
        EXPECT_EQ(report.faults[i].line, rows[i].line) << i;
        EXPECT_EQ(report.faults[i].place, rows[i].place) << i;
        EXPECT_EQ(report.faults[i].expected, rows[i].expected) << i;
        EXPECT_EQ(report.faults[i].schemaFile, "") << i;
    }
    EXPECT_TRUE(schemas.takeLog().empty());
}

TEST(XsdValidator, KeepsTheFirstAndTheLastOfVeryManyFaults)
{
    Schemas schemas;
    schemas.add(saleSchema, schemaOf("<xs:element name='r'><xs:complexType><xs:sequence>"
                                     "<xs:element name='n' type='xs:int' maxOccurs='unbounded'/>"
                                     "</xs:sequence></xs:complexType></xs:element>"));
    const q7::XsdReport report =
        q7::checkXsd("<r>" + QByteArray("\n<n>x</n>").repeated(20'000) + "</r>", 1, 0,
                     QString::fromStdString(schemas.path() + '/'));
    EXPECT_EQ(report.faults.size(), 10'000u);
    EXPECT_EQ(report.faults.front().line, 2);
    EXPECT_EQ(report.faults.back().line, 20'001);
}

TEST(XsdValidator, ReadsTheEncodingThatTheDocumentDeclares)
{
    Schemas schemas;
    schemas.add(saleSchema, schemaOf("<xs:element name='r'><xs:simpleType><xs:restriction "
                                     "base='xs:string'><xs:enumeration value='P\xc3\xa3o'/>"
                                     "</xs:restriction></xs:simpleType></xs:element>"));
    const QString text = QString::fromUtf8("<r>P\xc3\xa3o</r>");
    const auto declared = [](const char* encoding, const QByteArray& body) {
        return QByteArray("<?xml version='1.0' encoding='") + encoding + "'?>" + body;
    };
    EXPECT_EQ(validateXsd(text.toUtf8(), 1, 0), 0);
    EXPECT_EQ(validateXsd("\xef\xbb\xbf" + declared("utf-8", text.toUtf8()), 1, 0), 0);
    EXPECT_EQ(validateXsd(declared("ISO-8859-1", text.toLatin1()), 1, 0), 0);
    EXPECT_EQ(validateXsd(declared("windows-1252", text.toLatin1()), 1, 0), 0);
    const QString utf16 = QChar(QChar::ByteOrderMark) + QString(declared("UTF-16", {})) + text;
    EXPECT_EQ(validateXsd(
                  QByteArray(reinterpret_cast<const char*>(utf16.utf16()), utf16.size() * 2), 1, 0),
              0);
    EXPECT_EQ(validateXsd(text.toLatin1(), 1, 0), -71);
}

TEST(XsdValidator, TakesAnUnknownKindsFolderForABrokenSchema)
{
    Schemas schemas;
    EXPECT_EQ(validateXsd("<r/>", 7, 0), -71);
    schemas.useFolder("/nonexistent/");
    EXPECT_EQ(validateXsd("<r/>", 7, 0), -72);
    std::filesystem::remove(schemas.path() + "/q7_conf.ini"); // it is made anew
    EXPECT_EQ(validateXsd("<r/>", 1, 0), -72);
    EXPECT_NE(schemas.read("q7_conf.ini").find("caminho_xsd"), std::string::npos);
}

// A schema of several files, as (name, content) and the main one last, and what a document with an
// element of each comes to.
struct FilesRow {
    const char* name;
    std::vector<std::pair<std::string, std::string>> files;
    int result;
    const char* lastFault;
};

class XsdFiles : public testing::TestWithParam<FilesRow>
{
};

const std::string part =
    schemaOf("<xs:simpleType name='T'><xs:restriction base='xs:int'/></xs:simpleType>");
const std::string other =
    "<xs:schema xmlns:xs='http://www.w3.org/2001/XMLSchema' targetNamespace='urn:o'>"
    "<xs:simpleType name='T'><xs:restriction base='xs:int'/></xs:simpleType></xs:schema>";

std::string including(const std::string& location)
{
    return schemaOf("<xs:include schemaLocation='" + location +
                    "'/>\n<xs:element name='r' type='T'/>");
}
std::string importing(const std::string& location)
{
    return "<xs:schema xmlns:xs='http://www.w3.org/2001/XMLSchema' xmlns:o='urn:o'><!-- "
           "<xs:include "
           "schemaLocation='x.xsd'/> --><xs:import namespace='urn:o' schemaLocation = \"" +
           location + "\"/>\n<xs:element name='r' type='o:T'/></xs:schema>";
}

TEST_P(XsdFiles, AreReadFromTheSchemasFolderAlone)
{
    Schemas schemas;
    const std::string folder = schemas.path() + "/Cupons n\xc3\xa3o lidos/";
    schemas.useFolder(folder);
    for (const auto& [name, content] : GetParam().files)
        schemas.add("Cupons n\xc3\xa3o lidos/xsd/SAT/" + name, content);
    EXPECT_EQ(validateXsd("<r>1</r>", 1, 0), GetParam().result);
    EXPECT_EQ(validateXsd("<r>x</r>", 1, 0), -71);
    const q7::XsdReport report = q7::checkXsd("<r>1</r>", 1, 0, QString::fromStdString(folder));
    if (report.faults.empty()) {
        EXPECT_STREQ("", GetParam().lastFault);
    } else {
        const q7::SchemaFault& last = report.faults.back();
        EXPECT_EQ(last.schemaFile + ':' + std::to_string(last.line) + ": " + last.description,
                  GetParam().lastFault);
    }
}

const FilesRow filesRows[] = {
    {"Include", {{"part.xsd", part}, {"XML_SAT.xsd", including("part.xsd")}}, 0, ""},
    {"IncludeWithBlanks",
     {{"a b/p.xsd", part}, {"XML_SAT.xsd", including("a%20b/./p.xsd")}},
     0,
     ""},
    {"IncludeInACircle",
     {{"part.xsd", schemaOf("<xs:include schemaLocation='XML_SAT.xsd'/><xs:simpleType name='T'>"
                            "<xs:restriction base='xs:int'/></xs:simpleType>")},
      {"XML_SAT.xsd", including("part.xsd")}},
     0,
     ""},
    {"FromASubfolderBack",
     {{"part.xsd", part},
      {"sub/all.xsd", schemaOf("<xs:include schemaLocation='../part.xsd'/>")},
      {"XML_SAT.xsd", including("sub/all.xsd")}},
     0,
     ""},
    {"Import", {{"o.xsd", other}, {"XML_SAT.xsd", importing("o.xsd")}}, 0, ""},
    {"BrokenPart",
     {{"part.xsd", "<a>\n</b>"}, {"XML_SAT.xsd", including("part.xsd")}},
     -71,
     "part.xsd:2: Opening and ending tag mismatch: a line 1 and b"},
    {"PartThatIsNoSchema",
     {{"part.xsd", "<a/>"}, {"XML_SAT.xsd", including("part.xsd")}},
     -71,
     "XML_SAT.xsd:1: Element '{http://www.w3.org/2001/XMLSchema}include': The XML document "
     "'part.xsd' is not a schema document."},
    {"OutsideTheFolder",
     {{"../part.xsd", part}, {"XML_SAT.xsd", including("../part.xsd")}},
     -71,
     "XML_SAT.xsd:1: The file '../part.xsd' cannot be had from the schema's folder."},
    {"OutsideByAnAbsolutePath",
     {{"XML_SAT.xsd", including("file:///etc/passwd")}},
     -71,
     "XML_SAT.xsd:1: The file 'file:///etc/passwd' cannot be had from the schema's folder."},
    {"OnAHost",
     {{"XML_SAT.xsd", including("http://127.0.0.1:9/part.xsd")}},
     -71,
     "XML_SAT.xsd:1: The file 'http://127.0.0.1:9/part.xsd' cannot be had from the schema's "
     "folder."},
    // Where to import from is a hint alone.
    {"ImportFromAHost",
     {{"XML_SAT.xsd", importing("http://127.0.0.1:9/o.xsd")}},
     -71,
     "XML_SAT.xsd:2: element decl. 'r', attribute 'type': The QName value '{urn:o}T' does not "
     "resolve "
     "to a(n) type definition."},
};

INSTANTIATE_TEST_SUITE_P(Schemas, XsdFiles, testing::ValuesIn(filesRows),
                         [](const auto& row) { return std::string(row.param.name); });

TEST(XsdValidator, SeesThatAFileOfASchemaHasChanged)
{
    Schemas schemas;
    schemas.add(saleSchema, including("part.xsd"));
    EXPECT_EQ(validateXsd("<r>1</r>", 1, 0), -71);
    schemas.add("xsd/SAT/part.xsd", part);
    EXPECT_EQ(validateXsd("<r>1</r>", 1, 0), 0);
    // One that never ends is not opened.
    std::filesystem::remove(schemas.path() + "/xsd/SAT/part.xsd");
    ASSERT_EQ(mkfifo((schemas.path() + "/xsd/SAT/part.xsd").c_str(), 0600), 0);
    EXPECT_EQ(validateXsd("<r>1</r>", 1, 0), -71);
}

// A hint in a document may name anything, a remote host or a device that never ends among them.
TEST(XsdValidator, OpensNothingThatADocumentNames)
{
    Schemas schemas;
    schemas.add(saleSchema, numbersSchema);
    schemas.add("other.xsd", "no schema");
    const QByteArray hint = "xsi:noNamespaceSchemaLocation='file://" +
                            QByteArray::fromStdString(schemas.path()) + "/other.xsd'";
    EXPECT_EQ(validateXsd("<r xmlns:xsi='http://www.w3.org/2001/XMLSchema-instance' " + hint +
                              "><n>1</n></r>",
                          1, 0),
              0);
}

int hostsErrors = 0;

void countHostsErrors(void* /*context*/, const char* /*message*/, ...)
{
    ++hostsErrors;
}

TEST(XsdValidator, LeavesAHostsUseOfTheEngineAlone)
{
    Schemas schemas;
    schemas.add(saleSchema, including("part.xsd"));
    schemas.add("xsd/SAT/part.xsd", part);
    schemas.write("host.xml", "<host/>");
    const xmlExternalEntityLoader loader = xmlGetExternalEntityLoader();
    xmlSetGenericErrorFunc(nullptr, countHostsErrors);

    testing::internal::CaptureStdout();
    testing::internal::CaptureStderr();
    for (const char* document : {"<r>1</r>", "<r>x</r>", "<r", "<!DOCTYPE r><r/>"})
        validateXsd(document, 1, 0);
    schemas.add("xsd/SAT/part.xsd", "<a");
    EXPECT_EQ(validateXsd("<r>1</r>", 1, 0), -71);
    EXPECT_EQ(testing::internal::GetCapturedStdout(), "");
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
    EXPECT_EQ(hostsErrors, 0);

    EXPECT_EQ(xmlGetExternalEntityLoader(), loader);
    EXPECT_EQ(xmlReadMemory("<a", 2, nullptr, nullptr, 0), nullptr);
    EXPECT_GT(hostsErrors, 0); // its own
    xmlSetGenericErrorFunc(nullptr, nullptr);
    xmlDoc* document = xmlReadFile((schemas.path() + "/host.xml").c_str(), nullptr, 0);
    EXPECT_NE(document, nullptr);
    xmlFreeDoc(document);
}

TEST(XsdValidator, LeavesTheMemoryWhereItWas)
{
    Schemas schemas;
    schemas.add(saleSchema, including("part.xsd"));
    schemas.add("xsd/SAT/part.xsd", part);
    schemas.add("xsd/SAT/XML_SAT_Canc.xsd", including("gone.xsd"));
    const auto validations = [&](int count) {
        for (int i = 0; i < count; i += 4) {
            EXPECT_EQ(validateXsd("<r>1</r>", 1, 0), 0);
            EXPECT_EQ(validateXsd("<r>x</r>", 1, 0), -71);
            EXPECT_EQ(validateXsd("<!DOCTYPE r><r>x", 1, 0), -71);
            EXPECT_EQ(validateXsd("<r>1</r>", 2, 0), -71);
        }
        return mallinfo2().uordblks;
    };
    schemas.stopLog();
    const std::size_t before = validations(100);
    EXPECT_LT(validations(2000), before + 20'000); // ten bytes for each: what malloc keeps at hand
}

TEST(XsdValidator, TakesTheSampleNotesForWhatTheyAre)
{
    const std::string folder = q7test::sampleData("");
    if (q7test::sampleData("xsd").empty())
        GTEST_SKIP() << "no official schemas in the sample data";
    Schemas schemas;
    schemas.useFolder(folder);
    const auto sample = [](const char* name) {
        return QByteArray::fromStdString(q7test::fileContent(q7test::sampleData(name)));
    };
    const QByteArray note = sample("nfce/homologacao.xml");
    EXPECT_EQ(validateXsd(note, 4, 1), 0);
    EXPECT_EQ(validateXsd(note, 4, 0), -71); // the authorised form is no bare note
    EXPECT_EQ(validateXsd(note, 3, 1), -71);
    EXPECT_EQ(validateXsd(sample("nfce/contingencia-offline.xml"), 4, 0), 0);

    const int first = note.indexOf("<det ");
    const int second = note.indexOf("<det ", first + 1);
    const auto withItems = [&](int count) {
        QByteArray items;
        for (int number = 1; number <= count; ++number)
            items += note.mid(first, second - first)
                         .replace("nItem=\"1\"", "nItem=\"" + QByteArray::number(number) + '"');
        return note.left(first) + items + note.mid(note.indexOf("<total>"));
    };
    EXPECT_EQ(validateXsd(withItems(102), 4, 1), 0);
    EXPECT_EQ(validateXsd(withItems(991), 4, 1), -71);
}

} // namespace
