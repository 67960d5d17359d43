#include "closed_xml.h"

#include <libxml/SAX2.h>
#include <libxml/parser.h>

namespace q7
{
namespace
{

struct FreeParser {
    void operator()(xmlParserCtxt* parser) const { xmlFreeParserCtxt(parser); }
};

xmlParserCtxt* parserOf(void* context)
{
    return static_cast<xmlParserCtxt*>(context);
}

// The parser's own data; its callbacks get the parser itself.
SchemaFaults& faultsOf(void* context)
{
    return *static_cast<SchemaFaults*>(parserOf(context)->_private);
}

void noteError(void* context, xmlError* error)
{
    addFault(faultsOf(context), *error);
}

void refuse(void* context, const char* why)
{
    xmlParserCtxt* parser = parserOf(context);
    xmlError error{};
    error.level = XML_ERR_FATAL;
    error.message = const_cast<char*>(why); // NOLINT(cppcoreguidelines-pro-type-const-cast)
    error.line = xmlSAX2GetLineNumber(parser);
    addFault(faultsOf(context), error);
    parser->wellFormed = 0;
    xmlStopParser(parser);
}

void refuseDocumentType(void* context, const xmlChar* /*name*/, const xmlChar* /*publicId*/,
                        const xmlChar* /*systemId*/)
{
    refuse(context, "A document type declaration is not allowed.");
}

void declareEntity(void* context, const xmlChar* name, int type, const xmlChar* publicId,
                   const xmlChar* systemId, xmlChar* content)
{
    if (systemId != nullptr || publicId != nullptr)
        refuse(context, "An external entity is not allowed.");
    else
        xmlSAX2EntityDecl(context, name, type, publicId, systemId, content);
}

} // namespace

void FreeParsedXml::operator()(xmlDoc* tree) const
{
    xmlFreeDoc(tree);
}

ParsedXml parseClosed(std::string_view text, Declarations allowed, SchemaFaults& faults)
{
    const std::unique_ptr<xmlParserCtxt, FreeParser> parser(xmlNewParserCtxt());
    if (parser == nullptr)
        throw std::bad_alloc();
    const std::size_t before = faults.size();
    parser->_private = &faults;
    parser->sax->serror = noteError;
    if (allowed == Declarations::None)
        parser->sax->internalSubset = refuseDocumentType;
    else
        parser->sax->entityDecl = declareEntity;
    ParsedXml tree(xmlCtxtReadMemory(
        parser.get(), text.data(), static_cast<int>(text.size()), nullptr, nullptr,
        XML_PARSE_NONET | XML_PARSE_NOENT | XML_PARSE_IGNORE_ENC | XML_PARSE_BIG_LINES));
    if (tree == nullptr && faults.size() == before)
        faults.push_back({"The text cannot be read.", 0, {}, {}, {}});
    return tree;
}

} // namespace q7
