// XML text as a tree that holds what fiscal documents are asked for, at a bounded cost.
#pragma once

#include <QString>
#include <deque>
#include <vector>

namespace q7
{

class XmlTree;

/** An element of an XmlTree, or a processing instruction, which stands among them; or nothing, in
 *  which every question finds nothing. Not to be asked once its tree is gone. */
class XmlNode
{
public:
    XmlNode() = default;

    bool isNull() const { return m_tree == nullptr; }
    bool isElement() const;

    /** The first child of this name; a processing instruction's is its target. */
    XmlNode child(QStringView name) const;

    /** The text that it begins with, up to the first reference to an entity that is not declared; null
     *  when it begins with something else. CDATA counts as a text of its own. */
    QString text() const;

    /** Null when there is none of this name. */
    QString attribute(QStringView name) const;

    /** The elements of this name anywhere below, in document order. */
    std::vector<XmlNode> elementsNamed(QStringView name) const;

private:
    friend class XmlTree;
    XmlNode(const XmlTree& tree, int index) : m_tree(&tree), m_index(index) {}

    const XmlTree* m_tree = nullptr;
    int m_index = 0;
};

class XmlTree
{
public:
    /** text: in the encoding that its prologue declares, UTF-8 when none. Names keep their prefixes;
     *  white space alone is dropped. A text that does not parse leaves an empty tree, and so does one
     *  with elements nested deeper than 256, for which Qt's reader would pay with its caller's stack,
     *  or with a document type declaration, which no fiscal document has. */
    explicit XmlTree(const QByteArray& text);
    XmlTree(const XmlTree&) = delete;
    XmlTree& operator=(const XmlTree&) = delete;

    /** Its children are the prologue, as a processing instruction "xml", and the root element. */
    XmlNode document() const { return {*this, 0}; }

private:
    friend class XmlNode;
    friend class XmlTreeBuilder;

    enum class Kind { Document, Element, Instruction };

    struct Slice { // of m_text
        int begin = 0;
        int size = -1; // -1: there is no text
    };
    struct Node {
        Kind kind;
        Slice name;
        Slice text;
        int attributesEnd; // they begin where those of the node before end
        int end;           // behind its last descendant
    };
    struct Attribute {
        Slice name;
        Slice value;
    };

    Slice keep(const QString& text);
    const Node& node(int index) const { return m_nodes[static_cast<std::size_t>(index)]; }
    QStringView view(const Slice& slice) const
    {
        return QStringView(m_text).mid(slice.begin, slice.size);
    }

    std::deque<Node> m_nodes; // in document order, the document first
    std::deque<Attribute> m_attributes;
    QString m_text; // all names and texts
};

} // namespace q7
