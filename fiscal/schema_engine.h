// Qt's schema engine, run so that the host program does not notice.
#pragma once

#include <QByteArray>
#include <QString>

namespace q7
{

struct SchemaVerdict {
    bool conforms = false;
    QString description; // the engine's last message as plain text; may be empty
    qint64 line = 0;     // of that message, in the document or in a schema file; 0 when unknown
};

/** Whether a document conforms to the schema in a local file. Runs on a thread of its own, in a
 *  program without an application object too, and prints nothing there. A document nested deeper
 *  than 256 elements does not conform: the engine descends into it on the stack. */
SchemaVerdict checkAgainstSchema(const QByteArray& document, const QString& schemaPath);

} // namespace q7
