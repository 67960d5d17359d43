#include "bounded_xml.h"

#include <QHash>
#include <QXmlSimpleReader>

namespace q7
{
namespace
{

constexpr int maxElementDepth = 256;
constexpr int maxParenthesisDepth = 256;
constexpr int maxEntities = 256; // references among them counted too
constexpr int maxEntityChars = 64 * 1024;

// Whether a reference's name cannot go on here. Characters that no name holds may pass: such a name
// is not declared.
bool endsName(QChar c)
{
    switch (c.unicode()) {
    case '&':
    case '%':
    case ';':
    case ' ':
    case '\t':
    case '\n':
    case '\r':
    case '<':
    case '"':
    case '\'':
        return true;
    default:
        return false;
    }
}

bool opensReference(QChar c)
{
    return c == QLatin1Char('&') || c == QLatin1Char('%');
}

// What the entities declared so far cost: their texts, and every use of one fully expanded. Qt's own
// limits do not hold: they look one level deep and not at the entity declared last.
class EntityBudget
{
public:
    bool isEmpty() const { return m_texts.isEmpty(); }

    // name: as the reader reports it, "%name" for a parameter entity. False when it is refused.
    bool declare(const QString& name, const QString& text)
    {
        const bool isParameter = name.startsWith(QLatin1Char('%'));
        m_declared += 1 + text.count(QLatin1Char('&'));
        m_declaredChars += name.size() + text.size();
        if (m_declared > maxEntities || m_declaredChars > maxEntityChars ||
            leavesReferenceOpen(text, QLatin1Char('&')) ||
            (isParameter && leavesReferenceOpen(text, QLatin1Char('%'))) ||
            // Would reach the reader past the source that counts parentheses.
            (isParameter && text.contains(QLatin1Char('('))))
            return false;
        m_texts.insert(isParameter ? name : QLatin1Char('&') + name, text);
        m_costs.clear(); // references to what was unknown till now
        return true;
    }

    // reference: "&name" or "%name", as it stands in the document. False when the budget is spent.
    bool use(const QString& reference)
    {
        m_usedChars += cost(reference);
        return m_usedChars <= maxEntityChars;
    }

private:
    // An entity that ends in "&" makes a reference with the plain text behind it, which nobody would
    // count.
    static bool leavesReferenceOpen(const QString& text, QChar opener)
    {
        return text.lastIndexOf(opener) > text.lastIndexOf(QLatin1Char(';'));
    }

    // An entity's text and what the references in it expand to.
    int cost(const QString& reference)
    {
        const auto entity = m_texts.constFind(reference);
        if (entity == m_texts.constEnd())
            return 0;
        const auto known = m_costs.constFind(reference);
        if (known != m_costs.constEnd())
            return *known;

        m_costs.insert(reference, maxEntityChars + 1); // what it costs when it contains itself
        const QString& text = *entity;
        int chars = text.size();
        for (int i = 0; i < text.size() && chars <= maxEntityChars;) {
            const int start = i++;
            if (!opensReference(text.at(start)))
                continue;
            while (i < text.size() && !endsName(text.at(i)))
                ++i;
            if (i == text.size() || text.at(i) != QLatin1Char(';'))
                continue;
            const QString inner = text.mid(start, i - start);
            // What a parameter entity declares and uses at once cannot be measured beforehand.
            if (reference.startsWith(QLatin1Char('%')) && !m_texts.contains(inner))
                chars = maxEntityChars + 1;
            else
                chars += cost(inner);
        }
        m_costs.insert(reference, chars);
        return chars;
    }

    QHash<QString, QString> m_texts; // by reference
    QHash<QString, int> m_costs;     // by reference, as far as they were asked for
    int m_declared = 0;
    int m_declaredChars = 0;
    int m_usedChars = 0;
};

// Qt marks its SAX classes as deprecated. QDomDocument of this version is built on them itself, and
// they alone accept exactly what it accepts.
QT_WARNING_PUSH
QT_WARNING_DISABLE_DEPRECATED

// Hands the text to the reader character by character and ends it where a limit is passed, before
// the reader acts on what it has read.
class BoundedSource : public QXmlInputSource
{
public:
    BoundedSource(const QByteArray& text, EntityBudget& entities) : m_entities(entities)
    {
        setData(text);
        m_text = data(); // as characters
    }

    void prologIsOver()
    {
        m_inProlog = false;
        m_isWatching = !m_entities.isEmpty();
    }

    QChar next() override
    {
        if (m_next < m_text.size()) {
            const QChar c = m_text.at(m_next++);
            // The first is no character and ends the text in the base class too.
            if (c != QChar(EndOfData) && (!m_isWatching || admit(c)))
                return c;
            m_next = m_text.size();
        }
        return QChar(EndOfDocument);
    }

private:
    bool admit(QChar c)
    {
        if (c == QLatin1Char('('))
            return !m_inProlog || ++m_parenthesisDepth <= maxParenthesisDepth;
        if (c == QLatin1Char(')'))
            m_parenthesisDepth = qMax(0, m_parenthesisDepth - 1);

        if (opensReference(c)) {
            m_reference = c;
        } else if (c == QLatin1Char(';') && !m_reference.isEmpty()) {
            const QString reference = m_reference;
            m_reference.clear();
            return m_entities.use(reference);
        } else if (endsName(c)) {
            m_reference.clear();
        } else if (!m_reference.isEmpty() && m_reference.size() <= maxEntityChars) {
            m_reference += c;
        }
        return true;
    }

    EntityBudget& m_entities;
    QString m_text;
    int m_next = 0;
    QString m_reference; // the reference being read, its end apart
    int m_parenthesisDepth = 0;
    bool m_inProlog = true;
    bool m_isWatching = true;
};

// Stands between the reader and the builder of the tree: passes everything on, except elements
// nested too deep and entities that nobody declared.
class DepthLimit : public QXmlContentHandler
{
public:
    explicit DepthLimit(BoundedSource& source) : m_source(source) {}

    void setTarget(QXmlContentHandler* target) { m_target = target; }

    bool startElement(const QString& uri, const QString& localName, const QString& name,
                      const QXmlAttributes& attributes) override
    {
        m_source.prologIsOver();
        return ++m_depth <= maxElementDepth &&
               m_target->startElement(uri, localName, name, attributes);
    }
    bool endElement(const QString& uri, const QString& localName, const QString& name) override
    {
        --m_depth;
        return m_target->endElement(uri, localName, name);
    }

    void setDocumentLocator(QXmlLocator* locator) override
    {
        m_target->setDocumentLocator(locator);
    }
    bool startDocument() override { return m_target->startDocument(); }
    bool endDocument() override { return m_target->endDocument(); }
    bool startPrefixMapping(const QString& prefix, const QString& uri) override
    {
        return m_target->startPrefixMapping(prefix, uri);
    }
    bool endPrefixMapping(const QString& prefix) override
    {
        return m_target->endPrefixMapping(prefix);
    }
    bool characters(const QString& text) override { return m_target->characters(text); }
    bool ignorableWhitespace(const QString& text) override
    {
        return m_target->ignorableWhitespace(text);
    }
    bool processingInstruction(const QString& target, const QString& data) override
    {
        return m_target->processingInstruction(target, data);
    }
    // An entity that is declared nowhere stands for nothing. The builder would make a node of its
    // name, one in an attribute in front of the element, to be found in the place of an element that
    // is called so.
    bool skippedEntity(const QString& /*name*/) override { return true; }
    QString errorString() const override { return m_target->errorString(); }

private:
    BoundedSource& m_source;
    QXmlContentHandler* m_target = nullptr;
    int m_depth = 0;
};

// Tells the budget of every entity. The builder of the tree would only keep external ones in the
// document type, which nobody reads.
class EntityWatch : public QXmlDefaultHandler
{
public:
    explicit EntityWatch(EntityBudget& entities) : m_entities(entities) {}

    bool internalEntityDecl(const QString& name, const QString& value) override
    {
        return m_entities.declare(name, value);
    }

private:
    EntityBudget& m_entities;
};

class BoundedReader : public QXmlSimpleReader
{
public:
    BoundedReader(BoundedSource& source, EntityBudget& entities)
        : m_depthLimit(source), m_entityWatch(entities)
    {
        // As QDomDocument sets up its own reader.
        setFeature(QStringLiteral("http://xml.org/sax/features/namespaces"), false);
        setFeature(QStringLiteral("http://xml.org/sax/features/namespace-prefixes"), true);
        setFeature(
            QStringLiteral("http://trolltech.com/xml/features/report-whitespace-only-CharData"),
            false);
    }

    void setContentHandler(QXmlContentHandler* handler) override
    {
        m_depthLimit.setTarget(handler);
        QXmlSimpleReader::setContentHandler(&m_depthLimit);
    }
    void setDeclHandler(QXmlDeclHandler*) override
    {
        QXmlSimpleReader::setDeclHandler(&m_entityWatch);
    }

private:
    DepthLimit m_depthLimit;
    EntityWatch m_entityWatch;
};

} // namespace

QDomDocument readXml(const QByteArray& text)
{
    EntityBudget entities;
    BoundedSource source(text, entities);
    BoundedReader reader(source, entities);
    QDomDocument document;
    // What was read before an error goes too.
    return document.setContent(&source, &reader) ? document : QDomDocument();
}

QT_WARNING_POP

} // namespace q7
