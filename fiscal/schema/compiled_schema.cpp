#include "compiled_schema.h"

#include "closed_xml.h"
#include "schema_files.h"

namespace q7
{
namespace
{

const xmlChar* asXml(const char* text)
{
    return reinterpret_cast<const xmlChar*>(text);
}

struct FreeContext {
    void operator()(xmlSchemaParserCtxt* context) const { xmlSchemaFreeParserCtxt(context); }
    void operator()(xmlSchemaValidCtxt* context) const { xmlSchemaFreeValidCtxt(context); }
};

void noteError(void* faults, xmlError* error)
{
    addFault(*static_cast<SchemaFaults*>(faults), *error);
}

constexpr char instanceNamespace[] = "http://www.w3.org/2001/XMLSchema-instance";
constexpr char otherFault[] = "The schema engine failed.";

xmlNode* nextInDocumentOrder(xmlNode* node)
{
    if (node->children != nullptr)
        return node->children;
    while (node != nullptr && node->next == nullptr)
        node = node->parent;
    return node == nullptr ? nullptr : node->next;
}

// A document may name schemas of its own, which the engine would open.
void dropSchemaHints(xmlDoc* document)
{
    for (xmlNode* node = xmlDocGetRootElement(document); node != nullptr;
         node = nextInDocumentOrder(node)) {
        if (node->type != XML_ELEMENT_NODE)
            continue;
        for (const char* name : {"schemaLocation", "noNamespaceSchemaLocation"}) {
            if (xmlAttr* hint = xmlHasNsProp(node, asXml(name), asXml(instanceNamespace)))
                xmlRemoveProp(hint);
        }
    }
}

} // namespace

void CompiledSchema::Free::operator()(xmlSchema* schema) const
{
    xmlSchemaFree(schema);
}

CompiledSchema::CompiledSchema(const std::filesystem::path& file)
{
    const SchemaFiles files(file);
    m_faults = files.faults();
    if (!m_faults.empty())
        return;
    const OfferedFiles offered(files);
    const std::unique_ptr<xmlSchemaParserCtxt, FreeContext> parser(
        xmlSchemaNewParserCtxt(SchemaFiles::mainAddress().c_str()));
    if (parser != nullptr) {
        xmlSchemaSetParserStructuredErrors(parser.get(), noteError, &m_faults);
        m_schema.reset(xmlSchemaParse(parser.get()));
    }
    for (SchemaFault& fault : m_faults) {
        fault.schemaFile = files.withNames(fault.schemaFile);
        fault.description = files.withNames(fault.description);
    }
    if (m_schema == nullptr && m_faults.empty())
        m_faults.push_back({otherFault, 0, {}, {}, {}});
}

SchemaFaults CompiledSchema::check(std::string_view document) const
{
    if (!m_faults.empty())
        return m_faults;
    SchemaFaults faults;
    const ParsedXml tree = parseClosed(document, Declarations::None, faults);
    if (tree == nullptr)
        return faults;
    dropSchemaHints(tree.get());
    const std::unique_ptr<xmlSchemaValidCtxt, FreeContext> validation(
        xmlSchemaNewValidCtxt(m_schema.get()));
    int result = -1;
    if (validation != nullptr) {
        xmlSchemaSetValidStructuredErrors(validation.get(), noteError, &faults);
        result = xmlSchemaValidateDoc(validation.get(), tree.get());
    }
    if (result != 0 && faults.empty())
        faults.push_back({otherFault, 0, {}, {}, {}});
    return faults;
}

} // namespace q7
