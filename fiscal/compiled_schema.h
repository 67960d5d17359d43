// Schemas as the engine has compiled them, kept for the documents to come.
#pragma once

#include "schema_files.h"
#include "schema_verdict.h"

#include <QXmlSchema>

namespace q7
{

class CompiledSchema
{
public:
    /** The schema of a local file: compiled at first and when one of its files has changed. Every
     *  one is kept for the process's life: the engine does not free all of a schema, 0.8 MB of the
     *  NF-e's would be lost with each. For one thread at a time, which needs an event dispatcher. */
    static const CompiledSchema& of(const QString& path);

    explicit CompiledSchema(const QString& path);

    /** Conforms when the schema is valid. */
    const SchemaVerdict& verdict() const { return m_verdict; }
    const QXmlSchema& schema() const { return m_schema; }
    /** What is to be counted in documents, see liftLargeCounts. */
    const CountLimits& countLimits() const { return m_countLimits; }

private:
    SchemaVerdict m_verdict;
    QXmlSchema m_schema;
    CountLimits m_countLimits;
    SchemaFileStates m_files;
};

} // namespace q7
