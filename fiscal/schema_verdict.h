// What the schema engine has to say about a schema or a document.
#pragma once

#include <QAbstractMessageHandler>
#include <QString>

namespace q7
{

struct SchemaVerdict {
    bool conforms = false;
    QString description; // the engine's last message as plain text; may be empty
    qint64 line = 0;     // of that message, in the document or in a schema file; 0 when unknown
};

/** Keeps the engine's last message in a verdict. */
class LastMessage : public QAbstractMessageHandler
{
public:
    explicit LastMessage(SchemaVerdict& verdict) : m_verdict(verdict) {}

protected:
    void handleMessage(QtMsgType type, const QString& description, const QUrl& identifier,
                       const QSourceLocation& location) override;

private:
    SchemaVerdict& m_verdict;
};

} // namespace q7
