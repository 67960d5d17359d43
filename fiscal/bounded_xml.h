// XML text into a document tree, at a bounded cost whatever the text holds.
#pragma once

#include <QByteArray>
#include <QDomDocument>

namespace q7
{

/** The tree of text in the encoding that its prologue declares (UTF-8 when none), read as
 *  QDomDocument::setContent reads it: without namespaces, white space alone dropped. A reference to
 *  an entity that is not declared leaves nothing behind.
 *  An empty document when the text does not parse, or when it goes beyond what a fiscal document
 *  can need and Qt's reader would pay for with its caller's stack, memory or time: elements nested
 *  deeper than 256; entities declared with more than 64 KB of text or expanding to more than that
 *  in all (attribute values included); more than 256 entities and references among them; one whose
 *  text ends within a reference; a parameter entity with a parenthesis; more than 256 parentheses
 *  open at once before the first element, comments included. */
QDomDocument readXml(const QByteArray& text);

} // namespace q7
