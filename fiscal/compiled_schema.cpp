#include "compiled_schema.h"

#include <QUrl>
#include <deque>
#include <map>

namespace q7
{

const CompiledSchema& CompiledSchema::of(const QString& path)
{
    // Never destroyed, not even what was replaced: see the header.
    static auto& kept = *new std::deque<CompiledSchema>;
    static auto& current = *new std::map<QString, const CompiledSchema*>;
    const CompiledSchema*& schema = current[path];
    if (schema == nullptr || schema->m_files != statesOf(schema->m_files.keys()))
        schema = &kept.emplace_back(path);
    return *schema;
}

CompiledSchema::CompiledSchema(const QString& path)
{
    LastMessage messages(m_verdict);
    SchemaFiles files;
    m_schema.setMessageHandler(&messages);
    m_schema.setNetworkAccessManager(&files);
    m_verdict.conforms = m_schema.load(QUrl::fromLocalFile(path));
    m_countLimits = files.countLimits();
    m_files = files.states();
    m_schema.setMessageHandler(nullptr);
    m_schema.setNetworkAccessManager(nullptr);
}

} // namespace q7
