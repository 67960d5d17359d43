#include "xml_document.h"

#include "bounded_xml.h"

#include <QStringList>

namespace q7
{
namespace
{

// The node that the first count parts lead to, or a null node.
QDomNode nodeAt(const QDomDocument& document, const QStringList& parts, int count)
{
    if (parts.size() < 2)
        return {};
    int next = 1;
    QDomNode node = document.namedItem(parts[0]);
    if (node.isNull()) {
        node = document.namedItem(parts[1]);
        next = 2;
    }
    for (; next < count && !node.isNull(); ++next)
        node = node.namedItem(parts[next]);
    return node;
}

QStringList partsOf(const FieldPath& path)
{
    return path.split(QLatin1Char('|'));
}

} // namespace

FiscalXmlDocument::FiscalXmlDocument(const char* xml)
    : m_document(readXml(QByteArray::fromRawData(xml, static_cast<int>(qstrlen(xml)))))
{
}

QString FiscalXmlDocument::textAt(const FieldPath& path) const
{
    const QStringList parts = partsOf(path);
    return textOf(nodeAt(m_document, parts, parts.size()));
}

QDomNodeList FiscalXmlDocument::listAt(const FieldPath& path) const
{
    const QStringList parts = partsOf(path);
    return nodeAt(m_document, parts, parts.size() - 1)
        .toElement()
        .elementsByTagName(parts.constLast());
}

QString FiscalXmlDocument::attributeAt(const FieldPath& path) const
{
    const QStringList parts = partsOf(path);
    return nodeAt(m_document, parts, parts.size() - 1)
        .toElement()
        .attribute(parts.constLast(), QString());
}

bool FiscalXmlDocument::hasElementAt(const FieldPath& path) const
{
    const QStringList parts = partsOf(path);
    return nodeAt(m_document, parts, parts.size()).isElement();
}

QString textOf(const QDomNode& node)
{
    const QDomNode first = node.firstChild();
    return first.isText() ? first.nodeValue() : QString();
}

QString childText(const QDomNode& parent, const char* name)
{
    return textOf(parent.namedItem(QLatin1String(name)));
}

} // namespace q7
