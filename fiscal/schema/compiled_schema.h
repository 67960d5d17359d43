// A schema in the engine's form, against which documents are checked.
#pragma once

#include "schema_fault.h"

#include <filesystem>
#include <libxml/xmlschemas.h>
#include <memory>
#include <string_view>

namespace q7
{

/** Compiling the NF-e's schema takes some ten milliseconds, checking a note one: whoever checks many
 *  keeps it. For one thread at a time. */
class CompiledSchema
{
public:
    /** Reads the file and what it includes and imports from its folder; nothing else is opened. */
    explicit CompiledSchema(const std::filesystem::path& file);

    /** Why the schema cannot be used; empty when it can. */
    const SchemaFaults& faults() const { return m_faults; }

    /** Every fault of a document, none when it conforms; those of the schema when it cannot be used.
     *  document: UTF-8, whatever its prologue says. One with a document type declaration, or nested
     *  deeper than 256 elements, does not conform. Files that it names are not opened. */
    SchemaFaults check(std::string_view document) const;

private:
    struct Free {
        void operator()(xmlSchema* schema) const;
    };

    std::unique_ptr<xmlSchema, Free> m_schema;
    SchemaFaults m_faults;
};

} // namespace q7
