// XML text into a document tree, at a bounded cost whatever the text holds.
#pragma once

#include <QByteArray>
#include <QDomDocument>

namespace q7
{

/** The tree of text in the encoding that its prologue declares (UTF-8 when none), read as
 *  QDomDocument::setContent reads it: without namespaces, white space alone dropped. A reference to
 *  an entity that is not declared leaves nothing behind.
 *  An empty document when the text does not parse, has elements nested deeper than 256, for which
 *  Qt's reader would pay with its caller's stack, or declares a document type, which no fiscal
 *  document does. */
QDomDocument readXml(const QByteArray& text);

} // namespace q7
