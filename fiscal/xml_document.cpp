#include "xml_document.h"

namespace q7
{
namespace
{

QStringList partsOf(const FieldPath& path)
{
    return path.split(QLatin1Char('|'));
}

} // namespace

FiscalXmlDocument::FiscalXmlDocument(const char* xml)
    : m_tree(std::make_shared<const XmlTree>(
          QByteArray::fromRawData(xml, static_cast<int>(qstrlen(xml)))))
{
}

XmlNode FiscalXmlDocument::nodeAt(const QStringList& parts, int count) const
{
    if (parts.size() < 2)
        return {};
    int next = 1;
    XmlNode node = m_tree->document().child(parts[0]);
    if (node.isNull()) {
        node = m_tree->document().child(parts[1]);
        next = 2;
    }
    for (; next < count && !node.isNull(); ++next)
        node = node.child(parts[next]);
    return node;
}

QString FiscalXmlDocument::textAt(const FieldPath& path) const
{
    const QStringList parts = partsOf(path);
    return nodeAt(parts, parts.size()).text();
}

std::vector<XmlNode> FiscalXmlDocument::listAt(const FieldPath& path) const
{
    const QStringList parts = partsOf(path);
    return nodeAt(parts, parts.size() - 1).elementsNamed(parts.constLast());
}

QString FiscalXmlDocument::attributeAt(const FieldPath& path) const
{
    const QStringList parts = partsOf(path);
    return nodeAt(parts, parts.size() - 1).attribute(parts.constLast());
}

bool FiscalXmlDocument::hasElementAt(const FieldPath& path) const
{
    const QStringList parts = partsOf(path);
    return nodeAt(parts, parts.size()).isElement();
}

QString childText(const XmlNode& parent, const char* name)
{
    return parent.child(QString::fromLatin1(name)).text();
}

} // namespace q7
