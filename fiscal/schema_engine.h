// Qt's schema engine, run so that the host program does not notice.
#pragma once

#include "schema_verdict.h"

#include <QByteArray>

namespace q7
{

/** Whether a document conforms to the schema in a local file. Runs on a thread of its own, in a
 *  program without an application object too, and prints nothing there. A document nested deeper
 *  than 256 elements does not conform: the engine descends into it on the stack; nor does one that
 *  declares entities, which it would expand to any size. */
SchemaVerdict checkAgainstSchema(const QByteArray& document, const QString& schemaPath);

} // namespace q7
