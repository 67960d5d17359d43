// A fiscal document's XML, asked for its fields by path.
#pragma once

#include "xml_tree.h"

#include <QString>
#include <QStringList>
#include <memory>
#include <vector>

namespace q7
{

/** Names joined by "|", outermost first, as they stand in the XML: "nfeProc|NFe|infNFe|ide|nNF".
 *  At least two. The first is optional in the document: what is written for an authorised note
 *  finds its fields in a bare "NFe" too. Every step goes to the first child of that name. */
using FieldPath = QString;

class FiscalXmlDocument
{
public:
    /** xml: the text, up to its zero byte; null is empty. Text that cannot be taken (XmlTree) leaves
     *  an empty document, in which every question finds nothing. */
    explicit FiscalXmlDocument(const char* xml);

    /** The text that the element begins with; null when there is no such element, or when it begins
     *  with something else. */
    QString textAt(const FieldPath& path) const;

    /** Every element named by the path's last part anywhere below the element that the other parts
     *  lead to, in document order. */
    std::vector<XmlNode> listAt(const FieldPath& path) const;

    /** The attribute named by the path's last part; null when it is missing. */
    QString attributeAt(const FieldPath& path) const;

    bool hasElementAt(const FieldPath& path) const;

private:
    /** The node that the first count parts lead to, or none. */
    XmlNode nodeAt(const QStringList& parts, int count) const;

    std::shared_ptr<const XmlTree> m_tree; // of all copies
};

/** The text that the first child of this name begins with; null when there is none. */
QString childText(const XmlNode& parent, const char* name);

} // namespace q7
