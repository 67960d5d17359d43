#include "schema_files.h"

#include <QBuffer>
#include <QFile>
#include <QFileInfo>
#include <QNetworkReply>
#include <QNetworkRequest>
#include <QRegularExpression>
#include <algorithm>

namespace q7
{
namespace
{

constexpr int leastLiftedCount = 100;

/** Content that is there at once, or a refusal. */
class ReadyReply : public QNetworkReply
{
public:
    ReadyReply(const QNetworkRequest& request, const QByteArray& content)
    {
        setRequest(request);
        setUrl(request.url());
        setOperation(QNetworkAccessManager::GetOperation);
        m_content.setData(content);
        m_content.open(QIODevice::ReadOnly);
        open(QIODevice::ReadOnly | QIODevice::Unbuffered);
        setFinished(true);
        if (content.isNull()) {
            setError(ContentAccessDenied, request.url().toString());
            QMetaObject::invokeMethod(this, "errorOccurred", Qt::QueuedConnection,
                                      Q_ARG(QNetworkReply::NetworkError, ContentAccessDenied));
        }
        // Queued: the engine connects to the reply once it has it.
        QMetaObject::invokeMethod(this, "finished", Qt::QueuedConnection);
    }

    qint64 bytesAvailable() const override
    {
        return m_content.bytesAvailable() + QNetworkReply::bytesAvailable();
    }
    void abort() override {}

protected:
    qint64 readData(char* data, qint64 maxSize) override { return m_content.read(data, maxSize); }

private:
    QBuffer m_content;
};

// Null when there is no such file.
QByteArray readFile(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

} // namespace

SchemaFileStates statesOf(const QStringList& paths)
{
    SchemaFileStates states;
    for (const QString& path : paths) {
        const QFileInfo file(path);
        states[path] = {file.lastModified(), file.size()};
    }
    return states;
}

QNetworkReply* SchemaFiles::createRequest(Operation /*operation*/, const QNetworkRequest& request,
                                          QIODevice* /*outgoingData*/)
{
    const QString path = request.url().toLocalFile(); // empty for addresses of other kinds
    m_states[path] = statesOf({path}).first();
    return new ReadyReply(request, liftLargeCounts(readFile(path), m_countLimits));
}

QNetworkReply* NoFiles::createRequest(Operation /*operation*/, const QNetworkRequest& request,
                                      QIODevice* /*outgoingData*/)
{
    return new ReadyReply(request, {});
}

QByteArray liftLargeCounts(const QByteArray& schema, CountLimits& limits)
{
    static const QRegularExpression declaration(
        R"re(<(?:\w+:)?element\s[^>]*\bname=["']([^"']*)["'][^>]*\bmaxOccurs=["'](\d+)["'])re");
    const QString text = QString::fromLatin1(schema); // byte for byte
    QString lifted;
    int copied = 0;
    for (auto found = declaration.globalMatch(text); found.hasNext();) {
        const QRegularExpressionMatch match = found.next();
        const int count = match.captured(2).toInt();
        if (count < leastLiftedCount)
            continue;
        int& limit = limits[match.captured(1)];
        limit = std::max(limit, count);
        lifted += text.mid(copied, match.capturedStart(2) - copied) + "unbounded";
        copied = match.capturedEnd(2);
    }
    return copied == 0 ? schema : (lifted + text.mid(copied)).toLatin1();
}

} // namespace q7
