// XML text into libxml2's tree, without a file or a connection being opened or anything printed.
#pragma once

#include "schema_fault.h"

#include <libxml/tree.h>
#include <memory>
#include <string_view>

namespace q7
{

struct FreeParsedXml {
    void operator()(xmlDoc* tree) const;
};
using ParsedXml = std::unique_ptr<xmlDoc, FreeParsedXml>;

/** What XML text may declare before its root element. */
enum class Declarations {
    None,             // no document type at all
    NoExternalEntity, // a document type, whose external part is not read
};

/** The tree of a text, null when it is not well-formed, nested deeper than 256 elements or declares
 *  what it may not; then at least one fault is added. text: in UTF-8, whatever its prologue says. */
ParsedXml parseClosed(std::string_view text, Declarations allowed, SchemaFaults& faults);

} // namespace q7
