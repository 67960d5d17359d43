#include "schema_engine.h"

#include "compiled_schema.h"

#include <QCoreApplication>
#include <QThread>
#include <QUrl>
#include <QXmlSchemaValidator>
#include <QXmlStreamReader>
#include <atomic>
#include <memory>
#include <mutex>
#include <vector>

namespace q7
{
namespace
{

constexpr std::size_t deepestNesting = 256;

// What the engine would not survive or would get wrong: entities, which it expands without a bound,
// elements nested too deep, or standing in their parent more often than the limits say. Returns a
// conforming verdict when there is nothing.
SchemaVerdict checkBeforehand(const QByteArray& document, const CountLimits& limits)
{
    QXmlStreamReader reader(document);
    std::vector<CountLimits> counts(1); // of the children of every open element, outermost first
    while (!reader.atEnd()) {
        reader.readNext();
        if (reader.isDTD() && !reader.entityDeclarations().isEmpty())
            return {false, "Entities are declared.", reader.lineNumber()};
        if (reader.isStartElement()) {
            const QString name = reader.name().toString();
            const auto limit = limits.find(name);
            if (limit != limits.end() && ++counts.back()[name] > *limit)
                return {false,
                        QString("Element %1 stands more than %2 times.").arg(name).arg(*limit),
                        reader.lineNumber()};
            counts.emplace_back();
            if (counts.size() > deepestNesting + 1)
                return {false, "Elements are nested too deep.", reader.lineNumber()};
        } else if (reader.isEndElement()) {
            counts.pop_back();
        }
    }
    return {true, {}, 0};
}

SchemaVerdict runEngine(const QByteArray& document, const QString& schemaPath)
{
    const CompiledSchema& compiled = CompiledSchema::of(schemaPath);
    if (!compiled.verdict().conforms)
        return compiled.verdict();
    SchemaVerdict verdict = checkBeforehand(document, compiled.countLimits());
    if (!verdict.conforms)
        return verdict;

    LastMessage messages(verdict);
    NoFiles noFiles;
    QXmlSchemaValidator validator(compiled.schema());
    validator.setMessageHandler(&messages);
    validator.setNetworkAccessManager(&noFiles);
    // The document has no file of its own; an address without a scheme would be completed by the
    // application's path.
    QUrl documentUrl;
    documentUrl.setScheme("memoria");
    documentUrl.setPath("algum lugar...");
    verdict.conforms = validator.validate(document, documentUrl);
    return verdict;
}

thread_local bool isEngineThread = false;
std::atomic<QtMessageHandler> hostsMessageHandler{nullptr};

void dropEngineMessages(QtMsgType type, const QMessageLogContext& context, const QString& text)
{
    const QtMessageHandler host = hostsMessageHandler;
    if (host != nullptr && (!isEngineThread || type == QtFatalMsg))
        host(type, context, text);
}

/** For its life, nothing that Qt has to say on the engine's thread is printed. The engine reads each
 *  schema file in a QEventLoop, and every one of these warns when there is no QCoreApplication,
 *  although it works in any QThread. Messages of other threads pass. */
class EngineMessagesDropped
{
public:
    EngineMessagesDropped() { hostsMessageHandler = qInstallMessageHandler(dropEngineMessages); }
    ~EngineMessagesDropped()
    {
        // A handler that the host installed meanwhile stays.
        const QtMessageHandler present = qInstallMessageHandler(hostsMessageHandler);
        if (present != dropEngineMessages)
            qInstallMessageHandler(present);
    }
    EngineMessagesDropped(const EngineMessagesDropped&) = delete;
    EngineMessagesDropped& operator=(const EngineMessagesDropped&) = delete;
};

} // namespace

SchemaVerdict checkAgainstSchema(const QByteArray& document, const QString& schemaPath)
{
    static std::mutex oneAtATime;
    const std::lock_guard<std::mutex> lock(oneAtATime);

    std::unique_ptr<EngineMessagesDropped> messagesDropped;
    if (QCoreApplication::instance() == nullptr)
        messagesDropped = std::make_unique<EngineMessagesDropped>();

    // A thread of its own: the engine's event loops find a dispatcher there, and in a program that
    // runs one they do not handle its events out of turn.
    SchemaVerdict verdict;
    const std::unique_ptr<QThread> thread(QThread::create([&] {
        isEngineThread = true;
        try {
            verdict = runEngine(document, schemaPath);
        } catch (...) {
            verdict = {}; // out of memory
        }
    }));
    thread->start();
    thread->wait();
    return verdict;
}

} // namespace q7
