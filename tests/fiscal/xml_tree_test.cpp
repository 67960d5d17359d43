// The tree of XML text: what is in it, and what it costs.
#include "xml_tree.h"

#include "test_files.h"
#include "xml_mutations.h"

#include <QDomDocument>
#include <QElapsedTimer>
#include <QFile>
#include <QThread>
#include <gtest/gtest.h>
#include <memory>
#include <set>

namespace
{

constexpr int callerStackBytes = 1 << 20; // what Windows gives

QByteArray times(const char* text, int count)
{
    return QByteArray(text).repeated(count);
}
QByteArray note(const QByteArray& body)
{
    return "<r><f>x</f>" + body + "</r>";
}

long peakKilobytes()
{
    QFile status(QStringLiteral("/proc/self/status"));
    status.open(QIODevice::ReadOnly);
    const QByteArray text = status.readAll();
    return text.mid(text.indexOf("VmHWM:") + 6).trimmed().split(' ').first().toLong();
}

struct Row {
    const char* name;
    QByteArray text;
    bool isRead;
};

long resetPeakKilobytes()
{
    QFile resetPeak(QStringLiteral("/proc/self/clear_refs"));
    resetPeak.open(QIODevice::WriteOnly | QIODevice::Unbuffered);
    resetPeak.write("5");
    return peakKilobytes();
}

class BoundedXml : public testing::TestWithParam<Row>
{
};

TEST_P(BoundedXml, CostsLittleAndPrintsNothing)
{
    const long before = resetPeakKilobytes();
    testing::internal::CaptureStderr();
    QElapsedTimer timer;
    timer.start();

    QString field;
    const std::unique_ptr<QThread> host(QThread::create([&field] {
        field = q7::XmlTree(GetParam().text).document().child(u"r").child(u"f").text();
    }));
    host->setStackSize(callerStackBytes);
    host->start();
    host->wait();

    EXPECT_EQ(field, GetParam().isRead ? "x" : "");
    EXPECT_LT(timer.elapsed(), 1000);
    EXPECT_LT(peakKilobytes() - before, 8 * 1024);
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
}

const Row rows[] = {
    {"Binary", times("\xff\x01\xc3<\xfe", 20000), false},
    {"NotUtf8", note("\xc7\xe3"), true},
    {"ElementsNestedToTheLimit", note(times("<d>", 255) + times("</d>", 255)), true},
    {"ElementsNestedBeyondIt", note(times("<d>", 256) + times("</d>", 256)), false},
    {"UndeclaredInAttribute", "<r><f a='&f;'>x</f></r>", true},
    {"UndeclaredManyTimes", note(times("&e;", 300000)), true},
    {"DocumentType", "<!DOCTYPE r>" + note(""), false},
    {"ParenthesesNestedDeep",
     "<!DOCTYPE r [<!ELEMENT d " + times("(", 200000) + "d" + times(")", 200000) + ">]>" + note(""),
     false},
};

INSTANTIATE_TEST_SUITE_P(Text, BoundedXml, testing::ValuesIn(rows),
                         [](const auto& row) { return std::string(row.param.name); });

TEST(XmlTree, TakesAFewTimesItsText)
{
    const QByteArray item = "<det nItem='1'><prod><cProd>101</cProd><xProd>LEITE</xProd>"
                            "<qCom>1.0000</qCom><uCom>UN</uCom></prod></det>";
    const QByteArray text = "<CFe><infCFe>" + item.repeated(20000) + "</infCFe></CFe>";
    const long before = resetPeakKilobytes();
    const q7::XmlTree tree(text);
    EXPECT_LT(peakKilobytes() - before, 5L * Q7_MEMORY_FACTOR * text.size() / 1024);
    EXPECT_EQ(tree.document().child(u"CFe").elementsNamed(u"det").size(), 20000u);
}

// Receipts rely on Qt's own tree, oddities included: what it answers is right.

QString textOf(const QDomNode& node)
{
    const QDomNode first = node.firstChild();
    return first.isText() ? first.nodeValue() : QString();
}

void expectSame(const QDomNode& expected, const q7::XmlNode& node, const std::set<QString>& names)
{
    ASSERT_EQ(node.isNull(), expected.isNull());
    ASSERT_EQ(node.isElement(), expected.isElement());
    ASSERT_EQ(node.text(), textOf(expected));
    for (const QString& name : names) {
        const QString attribute = expected.toElement().attribute(name, QString());
        ASSERT_EQ(node.attribute(name), attribute);
        ASSERT_EQ(node.attribute(name).isNull(), attribute.isNull());
        const QDomNode child = expected.namedItem(name);
        if (!child.isNull() || !node.child(name).isNull()) {
            ASSERT_NO_FATAL_FAILURE(expectSame(child, node.child(name), names));
        }
    }
}

void expectSameTree(const std::string& text)
{
    const QByteArray bytes = QByteArray::fromStdString(text);
    QDomDocument expected;
    if (!expected.setContent(bytes))
        expected = QDomDocument(); // what was read before an error is dropped
    const q7::XmlTree tree(bytes);
    const QDomElement root = expected.documentElement();
    std::set<QString> names{"xml", "p", "x", "nItem", "Id", "CFe", "NFe", root.nodeName()};
    for (QDomNode node = root; !node.isNull();) {         // in document order
        if (!node.nodeName().startsWith(QLatin1Char(35))) // not "#text"
            names.insert(node.nodeName());
        QDomNode next = node.firstChild();
        for (; next.isNull() && !node.isNull(); node = node.parentNode())
            next = node.nextSibling();
        node = next;
    }
    for (const QString& name : names) {
        ASSERT_NO_FATAL_FAILURE(
            expectSame(expected.namedItem(name), tree.document().child(name), names));
        const QDomNodeList list = root.elementsByTagName(name);
        const auto found = tree.document().child(root.nodeName()).elementsNamed(name);
        ASSERT_EQ(static_cast<int>(found.size()), list.length());
        for (int i = 0; i < list.length(); ++i)
            ASSERT_EQ(found[static_cast<std::size_t>(i)].text(), textOf(list.item(i)));
    }
}

TEST(XmlTree, AnswersAsQtsOwnTreeDoes)
{
    ASSERT_NO_FATAL_FAILURE(expectSameTree("<?xml version='1.0' encoding='ISO-8859-1'?>"
                                           "<x Id='\xe7&#33;'><p>&lt;\xe7&#xe7;</p></x>"));
    unsigned seed = 0;
    for (const char* name :
         {"venda-completa", "cancelamento", "autorizada-consumidor-cpf", "contingencia-offline"}) {
        const std::string document = q7test::exampleDocument(name);
        ASSERT_NO_FATAL_FAILURE(expectSameTree(document));
        q7test::XmlMutations mutations(document, ++seed);
        for (int i = 0; i < 50; ++i) {
            const std::string mutation = mutations.next();
            // Of an entity that is not declared Qt's makes a node.
            if (mutation.find("&no;") == std::string::npos) {
                ASSERT_NO_FATAL_FAILURE(expectSameTree(mutation)) << mutation;
            }
        }
    }
}

} // namespace
