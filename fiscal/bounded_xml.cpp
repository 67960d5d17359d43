#include "bounded_xml.h"

#include <QXmlSimpleReader>

namespace q7
{
namespace
{

constexpr int maxElementDepth = 256;

// Qt marks its SAX classes as deprecated. QDomDocument of this version is built on them itself, and
// they alone accept exactly what it accepts.
QT_WARNING_PUSH
QT_WARNING_DISABLE_DEPRECATED

// Stands between the reader and the builder of the tree: passes everything on, except elements
// nested too deep and entities that nobody declared.
class DepthLimit : public QXmlContentHandler
{
public:
    void setTarget(QXmlContentHandler* target) { m_target = target; }

    bool startElement(const QString& uri, const QString& localName, const QString& name,
                      const QXmlAttributes& attributes) override
    {
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
    QXmlContentHandler* m_target = nullptr;
    int m_depth = 0;
};

// Refuses a document type, before what it declares is read. With it go entities, which expand to any
// size, and declarations that the reader descends into on the stack.
class NoDocumentType : public QXmlLexicalHandler
{
public:
    void setTarget(QXmlLexicalHandler* target) { m_target = target; }

    bool startDTD(const QString& /*name*/, const QString& /*publicId*/,
                  const QString& /*systemId*/) override
    {
        return false;
    }
    bool endDTD() override { return false; }
    bool startEntity(const QString& name) override { return m_target->startEntity(name); }
    bool endEntity(const QString& name) override { return m_target->endEntity(name); }
    bool startCDATA() override { return m_target->startCDATA(); }
    bool endCDATA() override { return m_target->endCDATA(); }
    bool comment(const QString& text) override { return m_target->comment(text); }
    QString errorString() const override { return m_target->errorString(); }

private:
    QXmlLexicalHandler* m_target = nullptr;
};

class BoundedReader : public QXmlSimpleReader
{
public:
    BoundedReader()
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
    void setLexicalHandler(QXmlLexicalHandler* handler) override
    {
        m_noDocumentType.setTarget(handler);
        QXmlSimpleReader::setLexicalHandler(&m_noDocumentType);
    }

private:
    DepthLimit m_depthLimit;
    NoDocumentType m_noDocumentType;
};

} // namespace

QDomDocument readXml(const QByteArray& text)
{
    QXmlInputSource source;
    source.setData(text);
    BoundedReader reader;
    QDomDocument document;
    // What was read before an error goes too.
    return document.setContent(&source, &reader) ? document : QDomDocument();
}

QT_WARNING_POP

} // namespace q7
