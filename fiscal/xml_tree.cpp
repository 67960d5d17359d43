#include "xml_tree.h"

#include <QXmlSimpleReader>
#include <memory>

namespace q7
{

// Qt marks its SAX classes as deprecated. Integrators' documents have always been read by them, and
// they alone accept exactly what they accept.
QT_WARNING_PUSH
QT_WARNING_DISABLE_DEPRECATED

namespace
{

constexpr std::size_t maxElementDepth = 256;

/** Decodes the text as it is read, not at once. */
class TextInPieces : public QXmlInputSource
{
public:
    explicit TextInPieces(const QByteArray& text) : m_text(text) {}

    void fetchData() override
    {
        QString piece;
        while (piece.isEmpty() && m_next < m_text.size()) {
            constexpr int pieceBytes = 16 * 1024;
            const int size = qMin(pieceBytes, m_text.size() - m_next);
            piece = fromRawData(QByteArray::fromRawData(m_text.constData() + m_next, size),
                                m_next == 0);
            m_next += size;
        }
        setData(piece);
    }

private:
    const QByteArray& m_text;
    int m_next = 0;
};

} // namespace

// What it refuses ends the reading there.
class XmlTreeBuilder : public QXmlDefaultHandler
{
public:
    explicit XmlTreeBuilder(XmlTree& tree) : m_tree(tree) { open(XmlTree::Kind::Document, {}); }

    bool startElement(const QString& /*uri*/, const QString& /*localName*/, const QString& name,
                      const QXmlAttributes& attributes) override
    {
        if (m_open.size() > maxElementDepth)
            return false;
        beginsWith({});
        open(XmlTree::Kind::Element, name);
        for (int i = 0; i < attributes.length(); ++i) {
            const XmlTree::Slice attribute = m_tree.keep(attributes.qName(i));
            m_tree.m_attributes.push_back({attribute, m_tree.keep(attributes.value(i))});
        }
        m_tree.m_nodes.back().attributesEnd = static_cast<int>(m_tree.m_attributes.size());
        return true;
    }
    bool endElement(const QString& /*uri*/, const QString& /*localName*/,
                    const QString& /*name*/) override
    {
        close();
        return true;
    }
    bool characters(const QString& text) override
    {
        if (!m_isEmpty)
            return true;
        beginsWith(m_tree.keep(text));
        return true;
    }
    bool processingInstruction(const QString& target, const QString& /*data*/) override
    {
        beginsWith({});
        open(XmlTree::Kind::Instruction, target);
        close();
        return true;
    }
    bool comment(const QString& /*text*/) override
    {
        beginsWith({});
        return true;
    }
    // With it go entities, which expand to any size, and declarations that the reader descends into
    // on the stack: all of it stands behind this event.
    bool startDTD(const QString& /*name*/, const QString& /*publicId*/,
                  const QString& /*systemId*/) override
    {
        return false;
    }

private:
    void open(XmlTree::Kind kind, const QString& name)
    {
        m_open.push_back(m_tree.m_nodes.size());
        m_tree.m_nodes.push_back(
            {kind, m_tree.keep(name), {}, static_cast<int>(m_tree.m_attributes.size()), 0});
        m_isEmpty = true;
    }
    void close()
    {
        m_tree.m_nodes[m_open.back()].end = static_cast<int>(m_tree.m_nodes.size());
        m_open.pop_back();
        m_isEmpty = false; // what is open now has a child
    }
    // The open node's first child, when it has none so far.
    void beginsWith(const XmlTree::Slice& text)
    {
        if (m_isEmpty)
            m_tree.m_nodes[m_open.back()].text = text;
        m_isEmpty = false;
    }

    XmlTree& m_tree;
    std::vector<std::size_t> m_open; // nodes, outermost first
    bool m_isEmpty = true;           // whether the innermost has no child so far
};

XmlTree::XmlTree(const QByteArray& text)
{
    TextInPieces source(text);
    XmlTreeBuilder builder(*this);
    auto owner = std::make_unique<QXmlSimpleReader>();
    QXmlSimpleReader& reader = *owner;
    reader.setFeature(QStringLiteral("http://xml.org/sax/features/namespaces"), false);
    reader.setFeature(QStringLiteral("http://xml.org/sax/features/namespace-prefixes"), true);
    reader.setFeature(
        QStringLiteral("http://trolltech.com/xml/features/report-whitespace-only-CharData"), false);
    reader.setContentHandler(&builder);
    reader.setLexicalHandler(&builder);
    try {
        // What was read before an error goes too.
        if (!reader.parse(source))
            m_nodes.resize(1, m_nodes.front());
    } catch (...) {
        // Left behind: where memory has run out, its end would free what it has freed already.
        static_cast<void>(owner.release());
        throw;
    }
    m_nodes.front().end = static_cast<int>(m_nodes.size());
}

QT_WARNING_POP

XmlTree::Slice XmlTree::keep(const QString& text)
{
    const Slice slice = {m_text.size(), text.size()};
    m_text += text;
    return slice;
}

bool XmlNode::isElement() const
{
    return m_tree != nullptr && m_tree->node(m_index).kind == XmlTree::Kind::Element;
}

XmlNode XmlNode::child(QStringView name) const
{
    if (isNull())
        return {};
    const int end = m_tree->node(m_index).end;
    for (int i = m_index + 1; i < end; i = m_tree->node(i).end) {
        if (m_tree->view(m_tree->node(i).name) == name)
            return {*m_tree, i};
    }
    return {};
}

QString XmlNode::text() const
{
    if (isNull() || m_tree->node(m_index).text.size < 0)
        return {};
    return m_tree->view(m_tree->node(m_index).text).toString();
}

QString XmlNode::attribute(QStringView name) const
{
    if (isNull() || m_index == 0)
        return {};
    const int begin = m_tree->node(m_index - 1).attributesEnd;
    // Of two of the same name the last counts.
    for (int i = m_tree->node(m_index).attributesEnd; i-- > begin;) {
        const XmlTree::Attribute& attribute = m_tree->m_attributes[static_cast<std::size_t>(i)];
        if (m_tree->view(attribute.name) == name)
            return m_tree->view(attribute.value).toString();
    }
    return {};
}

std::vector<XmlNode> XmlNode::elementsNamed(QStringView name) const
{
    std::vector<XmlNode> found;
    if (!isElement())
        return found;
    const int end = m_tree->node(m_index).end;
    for (int i = m_index + 1; i < end; ++i) {
        const XmlNode node(*m_tree, i);
        if (node.isElement() && m_tree->view(m_tree->node(i).name) == name)
            found.push_back(node);
    }
    return found;
}

} // namespace q7
