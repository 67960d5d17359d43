#include "schema_verdict.h"

#include <QSourceLocation>
#include <QXmlStreamReader>

namespace q7
{
namespace
{

QString withoutMarkup(const QString& xhtml)
{
    QXmlStreamReader reader(xhtml);
    QString text;
    while (!reader.atEnd()) {
        if (reader.readNext() == QXmlStreamReader::Characters)
            text += reader.text();
    }
    return text;
}

} // namespace

void LastMessage::handleMessage(QtMsgType /*type*/, const QString& description,
                                const QUrl& /*identifier*/, const QSourceLocation& location)
{
    m_verdict.description = withoutMarkup(description);
    m_verdict.line = location.isNull() ? 0 : location.line();
}

} // namespace q7
