// INI files: what QSettings and people write reads as QSettings reads it.

#include "ini_file.h"

#include "temporary_folder.h"

#include <QSettings>
#include <gtest/gtest.h>
#include <sys/stat.h>

using namespace q7test;

namespace
{

constexpr char absent[] = "(absent)";

/** What a file of this content has under [nfce], leiaute, according to the class under test. */
std::string readText(const TemporaryFolder& folder)
{
    const std::optional<QString> text =
        q7::IniFile(folder.path() + "/test.ini").value("nfce", "leiaute");
    return text ? text->toStdString() : absent;
}

std::string textByQt(const TemporaryFolder& folder)
{
    QSettings settings(QString::fromStdString(folder.path() + "/test.ini"), QSettings::IniFormat);
    settings.setIniCodec("UTF-8");
    if (!settings.contains("nfce/leiaute"))
        return absent;
    const QVariant value = settings.value("nfce/leiaute");
    return (value.type() == QVariant::StringList ? value.toStringList().join(", ")
                                                 : value.toString())
        .toStdString();
}

const struct {
    const char* name;
    const char* content;
    const char* text;
} forms[] = {
    {"Plain", "[nfce]\nleiaute=6.0\n", "6.0"},
    {"WindowsLineEnds", "[nfce]\r\nleiaute=6.0\r\n", "6.0"},
    {"NoLineEndAtTheEnd", "[nfce]\nleiaute=6.0", "6.0"},
    {"ByteOrderMark", "\xEF\xBB\xBF[nfce]\nleiaute=6.0\n", "6.0"},
    {"Blanks", " [ nfce ]\n\tleiaute \t=  C:/a b \n", "C:/a b"},
    {"Empty", "[nfce]\nleiaute=\n", ""},
    {"WithoutEqualsSign", "[nfce]\nleiaute\n", absent},
    {"OtherGroup", "[sat]\nleiaute=6.0\n", absent},
    {"GroupTwice", "[nfce]\na=1\n[sat]\nleiaute=4\n[nfce]\nleiaute=6.0\n", "6.0"},
    {"LastOfTwo", "[nfce]\nleiaute=4\nleiaute=6.0\n", "6.0"},
    {"Separators", "[nfce]\nleiaute=:|=*|*\n", ":|=*|*"},
    {"Comments", "; [x]\n[nfce]\n;leiaute=4\n  ; \"\nleiaute=6.0 ; agora\n", "6.0"},
    {"CommentWithQuotes", "[nfce]\nleiaute=\"6;0\" ; \"\n", "6;0"},
    {"Commas", "[nfce]\nleiaute=D:/a,b ,  c\n", "D:/a, b, c"},
    {"QuotedCommas", "[nfce]\nleiaute=\"D:/a,b,  c\"\n", "D:/a,b,  c"},
    {"QuotedBlanks", "[nfce]\nleiaute=\" a \"\n", " a "},
    {"QuotedPart", "[nfce]\nleiaute=D:/\"a b;\"/c\n", "D:/a b;/c"},
    {"QuotedLineEnd", "[nfce]\nleiaute=\"a\nb=c\"\nx=1\n", "a\nb=c"},
    {"UnknownEscapes", "[nfce]\nleiaute=C:\\Q7\\xsd\\\\y\n", "C:7sd\\y"},
    {"EscapedLineEnd", "[nfce]\nleiaute=C:/Q7\\\r\nnext=1\n", "C:/Q7next=1"},
    {"Escapes", "[nfce]\nleiaute=\\\"\\a\\t\\n\\r\\x41g\\101\\xe7\\\n\n", "\"\a\t\n\rAgAç"},
    {"Utf8", "[nfce]\nleiaute=D:/Ação\n", "D:/Ação"},
    {"InvalidUtf8", "[nfce]\nleiaute=a\xE7z\n", "a\uFFFDz"},
    {"AtSign", "[nfce]\nleiaute=@@casa\n", "@casa"},
    {"ByteArray", "[nfce]\nleiaute=@ByteArray(D:/x)\n", "D:/x"},
    {"Nothing", "[nfce]\nleiaute=@Invalid()\n", ""},
};

TEST(IniFile, ReadsEveryFormAsQtReadsIt)
{
    for (const auto& form : forms) {
        const TemporaryFolder folder;
        folder.write("test.ini", form.content);
        EXPECT_EQ(form.text, readText(folder)) << form.name;
        EXPECT_EQ(form.text, textByQt(folder)) << form.name;
    }
}

TEST(IniFile, TakesBackWhatQtWrote)
{
    for (const char* written : {"", " ", "C:/Program Files (x86)/Q7/", "*|*", ":|", "a;b", "a,b",
                                "a=b", "C:\\Q7\\xsd\\", "\"a\" b", "@a", "@ByteArray(x)",
                                "linha\r\n\tfim\x01"
                                "1",
                                "Ação €", "%20[x]#"}) {
        const TemporaryFolder folder;
        QSettings(QString::fromStdString(folder.path() + "/test.ini"), QSettings::IniFormat)
            .setValue("nfce/leiaute", written);
        EXPECT_EQ(written, readText(folder)) << folder.read("test.ini");
    }
}

TEST(IniFile, FindsNamesWhateverTheirCase)
{
    const TemporaryFolder folder;
    folder.write("test.ini", "[NFCe]\nLeiaute=6.0\n");
    EXPECT_EQ("6.0", readText(folder));
}

TEST(IniFile, TellsMissingFromUnreadable)
{
    const TemporaryFolder folder;
    const std::string path = folder.path() + "/test.ini";
    EXPECT_EQ(q7::FileState::Missing, q7::IniFile(path).state());
    ASSERT_EQ(0, mkfifo(path.c_str(), 0600)); // is not waited for
    EXPECT_EQ(q7::FileState::Unreadable, q7::IniFile(path).state());
    EXPECT_EQ(q7::FileState::Unreadable, q7::IniFile(folder.path()).state());
    EXPECT_EQ(absent, readText(folder));
    ASSERT_EQ(0, std::remove(path.c_str()));
    folder.write("test.ini", "[nfce]\nleiaute=" + std::string(100000, 'x'));
    EXPECT_EQ(q7::FileState::Read, q7::IniFile(path).state());
    EXPECT_EQ(std::string(100000, 'x'), readText(folder));
}

} // namespace
