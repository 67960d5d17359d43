// XML text that would cost its reader more than a fiscal document may.
#include "bounded_xml.h"

#include <QElapsedTimer>
#include <QFile>
#include <QThread>
#include <gtest/gtest.h>
#include <memory>

namespace
{

constexpr int callerStackBytes = 1 << 20; // what Windows gives

QByteArray times(const char* text, int count)
{
    return QByteArray(text).repeated(count);
}
QByteArray numbered(const char* pattern, int first, int last)
{
    QByteArray text;
    for (int i = first; i <= last; ++i)
        text += QByteArray(pattern)
                    .replace("#-", QByteArray::number(i - 1))
                    .replace("#", QByteArray::number(i));
    return text;
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

class BoundedXml : public testing::TestWithParam<Row>
{
};

TEST_P(BoundedXml, CostsLittleAndPrintsNothing)
{
    QFile resetPeak(QStringLiteral("/proc/self/clear_refs"));
    resetPeak.open(QIODevice::WriteOnly | QIODevice::Unbuffered);
    resetPeak.write("5");
    const long before = peakKilobytes();
    testing::internal::CaptureStderr();
    QElapsedTimer timer;
    timer.start();

    QString field;
    const std::unique_ptr<QThread> host(QThread::create([&field] {
        field = q7::readXml(GetParam().text).namedItem("r").namedItem("f").toElement().text();
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
    {"Binary", numbered("\xff\x01#\xc3<\xfe", 1, 20000), false},
    {"NotUtf8", note("\xc7\xe3"), true},
    {"ElementsNestedToTheLimit", note(times("<d>", 255) + times("</d>", 255)), true},
    {"ElementsNestedBeyondIt", note(times("<d>", 256) + times("</d>", 256)), false},
    {"UndeclaredInAttribute", "<r><f a='&f;'>x</f></r>", true},
    {"UndeclaredManyTimes", note(times("&e;", 300000)), true},
    {"DocumentType", "<!DOCTYPE r>" + note(""), false},
    {"DocumentTypeOfAFile", "<!DOCTYPE r SYSTEM '/dev/zero'>" + note(""), false},
    {"EntitiesNested",
     "<!DOCTYPE r [<!ENTITY e0 'lol'>" +
         numbered("<!ENTITY e# '&e#-;&e#-;&e#-;&e#-;&e#-;'>", 1, 15) + "]>" + note("&e15;"),
     false},
    {"ParameterEntityThatNests",
     "<!DOCTYPE r [<!ENTITY % p '<!ELEMENT d " + times("(", 60000) + "'> %p;]>" + note(""), false},
    {"ParenthesesNestedDeep",
     "<!DOCTYPE r [<!ELEMENT d " + times("(", 200000) + "d" + times(")", 200000) + ">]>" + note(""),
     false},
};

INSTANTIATE_TEST_SUITE_P(Text, BoundedXml, testing::ValuesIn(rows),
                         [](const auto& row) { return std::string(row.param.name); });

} // namespace
