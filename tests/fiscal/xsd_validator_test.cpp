// Documents against schemas: hand-written ones here, the official ones where they are at hand.
#include "q7_impressora.h"
#include "temporary_folder.h"
#include "xsd_validator.h"

#include <QFile>
#include <QString>
#include <QtDebug>
#include <filesystem>
#include <gtest/gtest.h>

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
TEST(XsdValidator, LogsAFaultAsPlainTextWithItsLine)
{
    const struct {
        std::string schema;
        QByteArray document;
        std::string logged; // behind the code
    } rows[] = {
        {numbersSchema, "<r>\n<n>1</n>\n<m/></r>",
         "Element m is not defined in this scope. (linha 3)"},
        {numbersSchema, "<r><n>&lt;b&gt;</n></r>",
         "Content of element n does not match its type definition: <b> is not valid according to "
         "xs:int.. (linha 1)"},
        {numbersSchema, "<r>\n<n></r>", "Opening and ending tag mismatch. (linha 2)"},
        {numbersSchema, "", "Premature end of document. (linha 1)"},
        {numbersSchema, "<r>" + QByteArray("\n<n>1</n>").repeated(103) + "</r>",
         "Element n stands more than 102 times. (linha 104)"},
        {schemaOf("<xs:element name='r'><xs:complexType><xs:sequence>"
                  "<xs:any processContents='skip'/></xs:sequence></xs:complexType></xs:element>"),
         QByteArray("<r>\n").repeated(100000) + QByteArray("</r>").repeated(100000),
         "Elements are nested too deep. (linha 257)"},
        {schemaOf("<xs:element name='r'/>"), "<!DOCTYPE r [<!ENTITY e 'um'>]>\n<r>&e;</r>",
         "Entities are declared. (linha 1)"},
        {schemaOf("\n<xs:element name='r' type='T'/>"), "<r/>",
         "Type T of element element cannot be resolved. (linha 2)"},
        {"hello", "<r/>", "Start tag expected. (linha 1)"},
    };
    Schemas schemas;
    for (const auto& row : rows) {
        schemas.add(saleSchema, row.schema);
        EXPECT_EQ(validateXsd(row.document, 1, 0), -71);
        EXPECT_EQ(schemas.loggedLine(), "INFO ERRO XSD. COD:-71 " + row.logged);
    }
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

// Schemas are compiled once, but an operator may put in a newer one, or a part that was missing.
TEST(XsdValidator, SeesThatAFileOfASchemaHasChanged)
{
    Schemas schemas;
    schemas.add(saleSchema, schemaOf("<xs:include schemaLocation='part.xsd'/>"
                                     "<xs:element name='r' type='T'/>"));
    EXPECT_EQ(validateXsd("<r>1</r>", 1, 0), -71);
    for (const char* type : {"int", "date"}) {
        schemas.add("xsd/SAT/part.xsd",
                    schemaOf("<xs:simpleType name='T'><xs:restriction base='xs:" +
                             std::string(type) + "'/></xs:simpleType>"));
        EXPECT_EQ(validateXsd("<r>1</r>", 1, 0), std::string(type) == "int" ? 0 : -71);
    }
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

std::vector<std::string> hostsMessages;

void keepMessage(QtMsgType /*type*/, const QMessageLogContext& /*context*/, const QString& text)
{
    hostsMessages.push_back(text.toStdString());
}

// This program has no application object.
TEST(XsdValidator, IsSilentAndLeavesTheHostsMessagesAlone)
{
    Schemas schemas;
    schemas.add("xsd/SAT/part.xsd", numbersSchema);
    schemas.add(saleSchema, schemaOf("<xs:include schemaLocation='part.xsd'/>"));
    testing::internal::CaptureStderr();
    EXPECT_EQ(validateXsd("<r><n>1</n></r>", 1, 0), 0);
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "");

    const QtMessageHandler before = qInstallMessageHandler(keepMessage);
    EXPECT_EQ(validateXsd("<r><n>1</n></r>", 1, 0), 0);
    qWarning("after");
    qInstallMessageHandler(before);
    EXPECT_EQ(hostsMessages, std::vector<std::string>{"after"});
}

QByteArray officialNote(const char* name)
{
    QFile file(QString(Q7_SHARED_DATA "/nfce/") + name);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly));
    return file.readAll();
}

TEST(XsdValidator, TakesTheSampleNotesForWhatTheyAre)
{
    if (!std::filesystem::exists(Q7_SHARED_DATA "/xsd"))
        GTEST_SKIP() << "no official schemas in " Q7_SHARED_DATA "/xsd";
    Schemas schemas;
    schemas.useFolder(Q7_SHARED_DATA "/");
    const QByteArray note = officialNote("homologacao.xml");
    EXPECT_EQ(validateXsd(note, 4, 1), 0);
    EXPECT_EQ(validateXsd(note, 4, 0), -71); // the authorised form is no bare note
    EXPECT_EQ(validateXsd(note, 3, 1), -71);
    EXPECT_EQ(validateXsd(officialNote("contingencia-offline.xml"), 4, 0), 0);

    // The engine by itself would count to 101.
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
