// A fiscal document's XML, asked for its fields by path.
#pragma once

#include <QDomDocument>
#include <QString>

namespace q7
{

/** Names joined by "|", outermost first, as they stand in the XML: "nfeProc|NFe|infNFe|ide|nNF".
 *  At least two. The first is optional in the document: what is written for an authorised note
 *  finds its fields in a bare "NFe" too. Every step goes to the first child of that name. */
using FieldPath = QString;

class FiscalXmlDocument
{
public:
    /** xml: the text, up to its zero byte; null is empty. Text that cannot be taken (readXml) leaves
     *  an empty document, in which every question finds nothing. */
    explicit FiscalXmlDocument(const char* xml);

    /** The text that the element begins with; null when there is no such element, or when it begins
     *  with something else. */
    QString textAt(const FieldPath& path) const;

    /** Every element named by the path's last part anywhere below the element that the other parts
     *  lead to, in document order. */
    QDomNodeList listAt(const FieldPath& path) const;

    /** The attribute named by the path's last part; null when it is missing. */
    QString attributeAt(const FieldPath& path) const;

    bool hasElementAt(const FieldPath& path) const;

private:
    QDomDocument m_document;
};

/** The text that a node begins with; null when it is null or begins with something else. CDATA
 *  counts as text. */
QString textOf(const QDomNode& node);

/** textOf() the first child of this name. */
QString childText(const QDomNode& parent, const char* name);

} // namespace q7
