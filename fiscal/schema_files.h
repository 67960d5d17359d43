// How the schema engine gets at schema files: local ones alone, prepared for its limits.
#pragma once

#include <QDateTime>
#include <QHash>
#include <QMap>
#include <QNetworkAccessManager>
#include <QPair>
#include <QString>
#include <QStringList>

namespace q7
{

/** How often an element may stand in its parent, by its name. */
using CountLimits = QHash<QString, int>;

/** Files by their paths: time of change and size in bytes. Of a file that is not there, an invalid
 *  time and 0. */
using SchemaFileStates = QMap<QString, QPair<QDateTime, qint64>>;

SchemaFileStates statesOf(const QStringList& paths);

/** Answers with local files; every other address is refused, so that nothing is fetched from a
 *  network. Lives in the engine's thread. */
class SchemaFiles : public QNetworkAccessManager
{
public:
    /** What the engine must not be trusted to count in a document; see liftLargeCounts. */
    const CountLimits& countLimits() const { return m_countLimits; }

    /** Of every file asked for, from before it was read. */
    const SchemaFileStates& states() const { return m_states; }

protected:
    QNetworkReply* createRequest(Operation operation, const QNetworkRequest& request,
                                 QIODevice* outgoingData) override;

private:
    CountLimits m_countLimits;
    SchemaFileStates m_states;
};

/** Refuses everything. For documents: an xsi:schemaLocation in one must not make the engine open
 *  files or connections. */
class NoFiles : public QNetworkAccessManager
{
protected:
    QNetworkReply* createRequest(Operation operation, const QNetworkRequest& request,
                                 QIODevice* outgoingData) override;
};

/** A schema whose named elements have no maxOccurs of 100 and more: each becomes "unbounded" and is
 *  noted in limits. The engine takes every number above 101 for 101, so that it would refuse a note
 *  of 102 items, and makes as many states for every parent element, which costs a note of 100 items
 *  seconds. */
QByteArray liftLargeCounts(const QByteArray& schema, CountLimits& limits);

} // namespace q7
