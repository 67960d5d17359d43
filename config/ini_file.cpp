#include "ini_file.h"

#include <SimpleIni.h>
#include <charconv>
#include <cstring>

namespace q7
{
namespace
{

// One line per setting: in this form a value goes on over a line end that is quoted or escaped, and
// ends at a semicolon outside quotes, where a comment begins.
std::string joinedLines(const QByteArray& content)
{
    std::string lines;
    bool isQuoted = false;
    for (const char* c = content.begin(); c != content.end(); ++c) {
        const bool isLineEnd = *c == '\n' || *c == '\r';
        if (*c == '\\' && c + 1 != content.end()) {
            ++c;
            if (*c != '\n' && *c != '\r')
                lines.append({'\\', *c});
            else if (c + 1 != content.end() && c[1] != *c && (c[1] == '\n' || c[1] == '\r'))
                ++c; // the other half of the line end
        } else if (*c == ';' && !isQuoted) {
            while (c + 1 != content.end() && c[1] != '\n' && c[1] != '\r')
                ++c;
        } else if (isLineEnd && isQuoted) {
            lines += *c == '\n' ? "\\n" : "\\r";
        } else {
            isQuoted = isQuoted != (*c == '"');
            lines += *c;
        }
    }
    return lines;
}

// The character that an escape stands for; begin, behind the backslash, is left behind the escape.
QString unescaped(const char*& begin)
{
    static constexpr char letters[] = "abfnrtv\"?'\\";
    static constexpr char characters[] = "\a\b\f\n\r\t\v\"?'\\";
    if (*begin == '\0')
        return {};
    const char letter = *begin++;
    if (const char* found = std::strchr(letters, letter))
        return QChar(characters[found - letters]);
    const char* digits = letter == 'x' ? begin : begin - 1; // of any number
    unsigned code = 0;
    const auto read =
        std::from_chars(digits, digits + std::strlen(digits), code, letter == 'x' ? 16 : 8);
    if (read.ptr == digits)
        return {}; // an unknown letter is dropped
    begin = read.ptr;
    return QChar(static_cast<ushort>(code));
}

const char* behindBlanks(const char* text)
{
    return text + std::strspn(text, " \t");
}

// What a text stands for that begins with "@": an escaped "@", or a mark of bytes or of nothing.
QString unmarked(const QString& text)
{
    const QLatin1String bytesMark("@ByteArray(");
    if (text.startsWith(QLatin1String("@@")))
        return text.mid(1);
    if (text.startsWith(bytesMark) && text.endsWith(QLatin1Char(')')))
        return QString::fromUtf8(text.toLatin1().mid(bytesMark.size()).chopped(1));
    return text == QLatin1String("@Invalid()") ? QString() : text;
}

QString decoded(const char* raw)
{
    QString text;
    int keptLength = 0; // blanks from here on are dropped where the value ends unquoted
    bool isQuoted = false;
    bool wasQuoted = false;
    bool isList = false;
    const auto dropBlanks = [&] {
        while (!wasQuoted && text.size() > keptLength &&
               (text.endsWith(QLatin1Char(' ')) || text.endsWith(QLatin1Char('\t'))))
            text.chop(1);
    };
    for (const char* c = raw; *c != '\0';) {
        if (*c == '\\') {
            text += unescaped(++c);
            keptLength = text.size();
        } else if (*c == '"') {
            isQuoted = !isQuoted;
            wasQuoted = true;
            ++c;
            if (!isQuoted)
                c = behindBlanks(c);
        } else if (*c == ',' && !isQuoted) {
            dropBlanks();
            text += QLatin1String(", ");
            keptLength = text.size();
            wasQuoted = false;
            isList = true;
            c = behindBlanks(c + 1);
        } else {
            const std::size_t length = 1 + std::strcspn(c + 1, "\\\",");
            text += QString::fromUtf8(c, static_cast<int>(length));
            c += length;
        }
    }
    dropBlanks();
    return isList ? text : unmarked(text);
}

} // namespace

struct IniFile::Parsed : CSimpleIniA {
};

IniFile::IniFile(const NativePath& path) : m_parsed(new Parsed)
{
    QByteArray content;
    m_state = readFile(path, content);
    if (m_parsed->LoadData(joinedLines(content)) < 0)
        throw std::bad_alloc();
}

IniFile::~IniFile() = default;

std::optional<QString> IniFile::value(const char* group, const char* key) const
{
    const char* raw = m_parsed->GetValue(group, key);
    return raw == nullptr ? std::nullopt : std::optional(decoded(raw));
}

// The reader's library writes two empty lines between groups, QSettings one.
QByteArray iniContent(const IniSetting* begin, const IniSetting* end)
{
    constexpr char lineEnd[] = SI_NEWLINE_A;
    QByteArray content;
    for (const IniSetting* setting = begin; setting != end; ++setting) {
        if (setting == begin || std::strcmp(setting->group, setting[-1].group) != 0) {
            content += setting == begin ? "" : lineEnd;
            content.append('[').append(setting->group).append(']').append(lineEnd);
        }
        content.append(setting->key).append('=').append(setting->defaultText).append(lineEnd);
    }
    return content;
}

} // namespace q7
