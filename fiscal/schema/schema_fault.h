// What a schema or a document does wrong, as the schema engine found it.
#pragma once

#include <libxml/xmlerror.h>
#include <string>
#include <vector>

namespace q7
{

/** Texts are UTF-8. */
struct SchemaFault {
    std::string description; // one line in the engine's words, English; may be empty
    long line = 0;           // 0 when unknown
    /** Where it is, as element names from the root on: "NFe/infNFe/ide/nNF", an attribute as
     *  "NFe/infNFe/@Id". Empty for text that is not well-formed. */
    std::string place;
    /** What would have been right there: names of elements, values, a type, a pattern or a limit, as
     *  the schema writes it. Empty when nothing fits there, or when the engine does not say. */
    std::vector<std::string> expected;
    /** The schema's file that is at fault, relative to the schema's folder; empty when it is the
     *  document. */
    std::string schemaFile;
};

/** In the order in which they were found. */
using SchemaFaults = std::vector<SchemaFault>;

/** Adds what the engine reports; a warning is none. Of more than 10,000 the first and the last are
 *  kept. */
void addFault(SchemaFaults& faults, const xmlError& error) noexcept;

} // namespace q7
