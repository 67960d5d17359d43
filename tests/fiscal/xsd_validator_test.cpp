// Documents against schemas: hand-written ones here, the official ones where they are at hand.
#include "q7_impressora.h"
#include "temporary_folder.h"
#include "xsd_validator.h"

#include <QFile>
#include <QString>
#include <QtDebug>
#include <filesystem>
#include <gmock/gmock.h>
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

// A root element that holds numbers, one "n" or more.
std::string numbersSchema(const std::string& root, const std::string& highest = "unbounded")
{
    return schemaOf("<xs:element name='" + root + "'><xs:complexType><xs:sequence>" +
                    "<xs:element name='n' type='xs:int' maxOccurs=\"" + highest + "\"/>" +
                    "</xs:sequence></xs:complexType></xs:element>");
}

constexpr char saleSchema[] = "xsd/SAT/XML_SAT.xsd";

struct Kind {
    int kind;
    int version;
    const char* file;
};
std::ostream& operator<<(std::ostream& out, const Kind& row)
{
    return out << row.file;
}

class XsdKind : public testing::TestWithParam<Kind>
{
};

TEST_P(XsdKind, UsesItsSchema)
{
    Schemas schemas;
    EXPECT_EQ(validateXsd("<r><n>1</n></r>", GetParam().kind, GetParam().version), -72);
    EXPECT_EQ(schemas.loggedLine(), "INFO XSD NAO ENCONTRADO. COD:-72");
    schemas.add(GetParam().file, numbersSchema("r"));
    EXPECT_EQ(validateXsd("<r><n>1</n></r>", GetParam().kind, GetParam().version), 0);
    EXPECT_EQ(schemas.loggedLine(), "INFO SUCESSO");
}

INSTANTIATE_TEST_SUITE_P(AllKinds, XsdKind,
                         testing::Values(Kind{1, 0, saleSchema},
                                         Kind{2, 1, "xsd/SAT/XML_SAT_Canc.xsd"},
                                         Kind{3, 1, "xsd/NFe/3.10/procNFe_v3.10.xsd"},
                                         Kind{3, 0, "xsd/NFe/3.10/nfe_v3.10.xsd"},
                                         Kind{4, 1, "xsd/NFe/4.00/procNFe_v4.00.xsd"},
                                         Kind{4, 2, "xsd/NFe/4.00/nfe_v4.00.xsd"},
                                         Kind{5, 0, "xsd/SAT/XML_SAT_ENT.xsd"},
                                         Kind{6, 1, "xsd/SAT/XML_SAT_Canc_ENT.xsd"}));

struct Fault {
    const char* name;
    std::string schema;
    QByteArray document;
    std::string logged; // behind the code
};
std::ostream& operator<<(std::ostream& out, const Fault& row)
{
    return out << row.name;
}

class XsdFault : public testing::TestWithParam<Fault>
{
};

TEST_P(XsdFault, IsLoggedAsPlainTextWithItsLine)
{
    Schemas schemas;
    schemas.add(saleSchema, GetParam().schema);
    EXPECT_EQ(validateXsd(GetParam().document, 1, 0), -71);
    EXPECT_EQ(schemas.loggedLine(), "INFO ERRO XSD. COD:-71 " + GetParam().logged);
}

// The descriptions are the engine's own.
INSTANTIATE_TEST_SUITE_P(
    Each, XsdFault,
    testing::Values(
        Fault{"element", numbersSchema("r"), "<r>\n<n>1</n>\n<m/></r>",
              "Element m is not defined in this scope. (linha 3)"},
        Fault{"content", numbersSchema("r"), "<r><n>&lt;b&gt;</n></r>",
              "Content of element n does not match its type definition: <b> is not valid "
              "according to xs:int.. (linha 1)"},
        Fault{"not well-formed", numbersSchema("r"), "<r>\n<n></r>",
              "Opening and ending tag mismatch. (linha 2)"},
        Fault{"count", numbersSchema("r", "102"),
              "<r>" + QByteArray("\n<n>1</n>").repeated(103) + "</r>",
              "Element n stands more than 102 times. (linha 104)"},
        Fault{"no document", numbersSchema("r"), "", "Premature end of document. (linha 1)"},
        Fault{"nested too deep",
              schemaOf("<xs:element name='r'><xs:complexType><xs:sequence>"
                       "<xs:any processContents='skip'/></xs:sequence></xs:complexType>"
                       "</xs:element>"),
              QByteArray("<r>\n").repeated(100000) + QByteArray("</r>").repeated(100000),
              "Elements are nested too deep. (linha 257)"},
        Fault{"schema without a type", schemaOf("\n<xs:element name='r' type='T'/>"), "<r/>",
              "Type T of element element cannot be resolved. (linha 2)"},
        Fault{"schema not XML", "hello", "<r/>", "Start tag expected. (linha 1)"}));

TEST(XsdValidator, TakesAnUnknownKindsFolderForABrokenSchema)
{
    Schemas schemas;
    EXPECT_EQ(validateXsd("<r/>", 7, 0), -71);
    schemas.useFolder("/nonexistent/");
    EXPECT_EQ(validateXsd("<r/>", 7, 0), -72);
}

TEST(XsdValidator, MakesTheConfigurationFile)
{
    const q7test::DataFolder folder;
    EXPECT_EQ(validateXsd("<r/>", 1, 0), -72);
    EXPECT_NE(folder.read("q7_conf.ini").find("caminho_xsd"), std::string::npos);
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
    schemas.add(saleSchema, numbersSchema("r"));
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
    schemas.add("xsd/SAT/part.xsd", numbersSchema("r"));
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

/** The official schemas and the sample notes, each element of a note on a line of its own. */
class OfficialSchema : public testing::Test
{
protected:
    void SetUp() override
    {
        if (!std::filesystem::exists(Q7_SHARED_DATA "/xsd"))
            GTEST_SKIP() << "no official schemas in " Q7_SHARED_DATA "/xsd";
        schemas.useFolder(Q7_SHARED_DATA "/");
    }

    static QByteArray note(const char* name)
    {
        QFile file(QString(Q7_SHARED_DATA "/nfce/") + name);
        EXPECT_TRUE(file.open(QIODevice::ReadOnly));
        return file.readAll()
            .replace("><", ">\n<")
            .replace("\n<![CDATA[", "<![CDATA[")
            .replace("]]>\n", "]]>");
    }

    Schemas schemas;
};

TEST_F(OfficialSchema, AcceptsTheSampleNotes)
{
    EXPECT_EQ(validateXsd(note("autorizada-consumidor-cpf.xml"), 4, 1), 0);
    EXPECT_EQ(validateXsd(note("autorizada-sem-consumidor.xml"), 4, 1), 0);
    EXPECT_EQ(validateXsd(note("homologacao.xml"), 4, 1), 0);
    EXPECT_EQ(validateXsd(note("contingencia-offline.xml"), 4, 0), 0);
    // The authorised form is no bare note, and layout 4.00 is not 3.10.
    EXPECT_EQ(validateXsd(note("homologacao.xml"), 4, 0), -71);
    EXPECT_EQ(validateXsd(note("homologacao.xml"), 3, 1), -71);
}

TEST_F(OfficialSchema, ReportsTheLineOfAFault)
{
    struct Row {
        const char* written;
        const char* faulty;
        const char* reportedAt; // stands on the line that is reported
    };
    constexpr Row rows[] = {
        {"<natOp>VENDA</natOp>\n", "", "<mod>"},
        {"<vProd>18.49</vProd>", "<vProd>18,49</vProd>", "<vProd>18,49"},
        {"<CNPJ>97531246000121</CNPJ>", "<CNPJ>9753124600012</CNPJ>", "<CNPJ>9753"},
    };
    for (const Row& row : rows) {
        QByteArray faulty = note("autorizada-consumidor-cpf.xml");
        faulty.replace(row.written, row.faulty);
        const QByteArray before = faulty.left(faulty.indexOf(row.reportedAt));
        EXPECT_EQ(validateXsd(faulty, 4, 1), -71);
        EXPECT_THAT(schemas.loggedLine(),
                    testing::EndsWith("(linha " + std::to_string(before.count('\n') + 1) + ")"));
    }
}

// The engine by itself would count to 101.
TEST_F(OfficialSchema, CountsTheItemsOfALongNote)
{
    const QByteArray sample = note("homologacao.xml");
    const int first = sample.indexOf("<det ");
    const int second = sample.indexOf("<det ", first + 1);
    const int end = sample.indexOf("<total>");
    const auto withItems = [&](int count) {
        QByteArray items;
        for (int number = 1; number <= count; ++number)
            items += sample.mid(first, second - first)
                         .replace("nItem=\"1\"", "nItem=\"" + QByteArray::number(number) + '"');
        return sample.left(first) + items + sample.mid(end);
    };
    EXPECT_EQ(validateXsd(withItems(102), 4, 1), 0);
    EXPECT_EQ(validateXsd(withItems(991), 4, 1), -71);
}

} // namespace
