#include "fiscal_file.h"

#include "failure.h"
#include "file_content.h"
#include "text.h"

#include <libxml/parser.h>
#include <libxml/xmlreader.h>
#include <memory>
#include <new>
#include <optional>
#include <string_view>

namespace q7tool
{
namespace
{

constexpr std::size_t largestDocument = std::size_t{32} << 20U;
constexpr int deepestLevel = 256; // the library takes no deeper document
constexpr std::string_view nfceModel = "65";
constexpr std::size_t idPrefixLength = 3; // "CFe" or "NFe" before the key

struct ReaderEnd {
    void operator()(xmlTextReader* reader) const { xmlFreeTextReader(reader); }
};
using Reader = std::unique_ptr<xmlTextReader, ReaderEnd>;

struct DocumentEnd {
    void operator()(xmlDoc* document) const { xmlFreeDoc(document); }
};

std::string textOf(const xmlChar* text)
{
    return text == nullptr ? std::string() : reinterpret_cast<const char*>(text);
}

Failure refused(const std::string& happened, const std::string& todo)
{
    return {Exit::Document, happened, todo, {}};
}

struct Fault {
    int code = 0;
    int line = 0;
};

// The first fault of a document; those that follow come from it.
void keepFirst(void* fault, xmlError* error)
{
    auto* first = static_cast<Fault*>(fault);
    if (first->code == 0 && error->level >= XML_ERR_ERROR)
        *first = {error->code, error->line};
}

const char* inWords(int code)
{
    switch (code) {
    case XML_ERR_DOCUMENT_EMPTY:
    case XML_ERR_DOCUMENT_START:
        return "não começa como XML";
    case XML_ERR_DOCUMENT_END:
    case XML_ERR_TAG_NOT_FINISHED:
        return "termina antes da hora, ou tem texto depois do fim";
    case XML_ERR_TAG_NAME_MISMATCH:
        return "um elemento é fechado com o nome de outro";
    case XML_ERR_GT_REQUIRED:
    case XML_ERR_SPACE_REQUIRED:
        return "falta o \">\" de um elemento";
    case XML_ERR_INVALID_CHAR:
    case XML_ERR_INVALID_ENCODING:
    case XML_ERR_UNKNOWN_ENCODING:
    case XML_ERR_UNSUPPORTED_ENCODING:
    case XML_I18N_CONV_FAILED:
        return "há um caractere que não é da codificação declarada";
    case XML_ERR_NAME_REQUIRED:
    case XML_ERR_ENTITYREF_SEMICOL_MISSING:
    case XML_ERR_UNDECLARED_ENTITY:
    case XML_ERR_LT_IN_ATTRIBUTE:
        return "um \"&\" ou \"<\" do texto não foi escrito como &amp; ou &lt;";
    default:
        return "não é bem formado";
    }
}

void lookAt(xmlTextReader* reader, XmlFile& file, std::string& element)
{
    const int type = xmlTextReaderNodeType(reader);
    if (type == XML_READER_TYPE_DOCUMENT_TYPE)
        throw refused("O XML tem uma declaração DOCTYPE, que nenhum documento fiscal tem.",
                      "Use o XML que a SEFAZ ou o SAT devolveu, sem alterações.");
    if (type == XML_READER_TYPE_ELEMENT) {
        if (xmlTextReaderDepth(reader) >= deepestLevel)
            throw refused("O XML tem mais de 256 níveis de elementos.",
                          "Use o XML que a SEFAZ ou o SAT devolveu, sem alterações.");
        element = textOf(xmlTextReaderConstLocalName(reader));
        if (file.root.empty())
            file.root = element;
        const auto attribute = [&](const char* name) {
            const std::unique_ptr<xmlChar, decltype(xmlFree)> value(
                xmlTextReaderGetAttribute(reader, reinterpret_cast<const xmlChar*>(name)), xmlFree);
            return textOf(value.get());
        };
        if (element == "infCFe" || element == "infNFe") {
            file.id = attribute("Id");
            file.version = attribute("versao");
            file.cancelled = attribute("chCanc");
        }
    } else if (type == XML_READER_TYPE_TEXT || type == XML_READER_TYPE_CDATA) {
        if (element == "mod" && file.model.empty())
            file.model = textOf(xmlTextReaderConstValue(reader));
        else if (element == "assinaturaQRCODE" && file.signature.empty())
            file.signature = textOf(xmlTextReaderConstValue(reader));
        else if (element == "chCanc" && file.cancelled.empty())
            file.cancelled = textOf(xmlTextReaderConstValue(reader));
    } else if (type == XML_READER_TYPE_END_ELEMENT) {
        element.clear();
    }
}

/** Reads what the file tells; returns whether its text is UTF-8. */
bool glanceAt(const std::string& content, XmlFile& file)
{
    if (content.empty())
        throw refused("O arquivo está vazio.", "Use o XML do documento autorizado.");
    const Reader reader(xmlReaderForMemory(content.data(), static_cast<int>(content.size()),
                                           nullptr, nullptr, XML_PARSE_NONET));
    if (!reader)
        throw std::bad_alloc();
    Fault fault;
    xmlTextReaderSetStructuredErrorHandler(reader.get(), keepFirst, &fault);
    std::string element;
    int more = 0;
    while ((more = xmlTextReaderRead(reader.get())) == 1)
        lookAt(reader.get(), file, element);
    if (more != 0)
        throw refused("O XML não é bem formado: na linha " + std::to_string(fault.line) + ", " +
                          inWords(fault.code) + '.',
                      "Gere ou baixe o documento de novo; um editor ou a transmissão o estragou.");
    const std::string encoding = upperCase(textOf(xmlTextReaderConstEncoding(reader.get())));
    return encoding.empty() || encoding == "UTF-8" || encoding == "US-ASCII";
}

std::string asUtf8(const std::string& content)
{
    const std::unique_ptr<xmlDoc, DocumentEnd> document(
        xmlReadMemory(content.data(), static_cast<int>(content.size()), nullptr, nullptr,
                      XML_PARSE_NONET | XML_PARSE_NOERROR | XML_PARSE_NOWARNING));
    xmlChar* text = nullptr;
    int size = 0;
    if (document)
        xmlDocDumpMemoryEnc(document.get(), &text, &size, "UTF-8");
    std::string utf8 = textOf(text);
    xmlFree(text);
    return utf8;
}

std::optional<FiscalFile::Kind> kindOf(const XmlFile& file)
{
    if (file.root == "CFe")
        return FiscalFile::Kind::SatSale;
    if (file.root == "CFeCanc")
        return FiscalFile::Kind::SatCancellation;
    if ((file.root == "nfeProc" || file.root == "NFe") && file.model == nfceModel)
        return FiscalFile::Kind::Nfce;
    return std::nullopt;
}

Failure noDocument(const XmlFile& file)
{
    const std::string todo =
        "Use um CF-e de venda (raiz CFe), um cancelamento (CFeCanc) ou uma NFC-e "
        "(nfeProc ou NFe, modelo 65).";
    if (file.root == "nfeProc" || file.root == "NFe")
        return refused("O documento é do modelo " +
                           (file.model.empty() ? std::string("não informado") : file.model) +
                           ", não uma NFC-e.",
                       todo);
    return refused("O XML é bem formado, mas não é um documento que se imprima: a raiz é \"" +
                       file.root + "\".",
                   todo);
}

} // namespace

XmlFile readXmlFile(const std::string& path)
{
    std::string content = contentOf(path, largestDocument);
    XmlFile file;
    const bool isUtf8 = glanceAt(content, file);
    constexpr std::string_view byteOrderMark = "\xEF\xBB\xBF";
    if (startsWith(content, byteOrderMark))
        content.erase(0, byteOrderMark.size());
    file.text = isUtf8 ? std::move(content) : asUtf8(content);
    return file;
}

FiscalFile readFiscalFile(const std::string& path)
{
    XmlFile xml = readXmlFile(path);
    const std::optional<FiscalFile::Kind> kind = kindOf(xml);
    if (!kind)
        throw noDocument(xml);
    FiscalFile file;
    file.kind = *kind;
    file.text = std::move(xml.text);
    const std::string& id = *kind == FiscalFile::Kind::SatCancellation ? xml.cancelled : xml.id;
    file.key = id.substr(std::min(id.size(), idPrefixLength));
    file.signature = std::move(xml.signature);
    return file;
}

const char* nameOf(FiscalFile::Kind kind)
{
    switch (kind) {
    case FiscalFile::Kind::SatSale:
        return "CF-e de venda (SAT)";
    case FiscalFile::Kind::SatCancellation:
        return "CF-e de cancelamento (SAT)";
    default:
        return "NFC-e";
    }
}

} // namespace q7tool
