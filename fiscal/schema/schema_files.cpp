#include "schema_files.h"

#include "closed_xml.h"

#include <algorithm>
#include <fstream>
#include <iterator>
#include <libxml/parser.h>
#include <libxml/uri.h>
#include <map>
#include <memory>
#include <string_view>

namespace q7
{
namespace
{

namespace fs = std::filesystem;

constexpr std::size_t mostFiles = 100;
constexpr std::uintmax_t mostBytes = 16U << 20U;

// Only of an ordinary file: a device could go on for ever.
std::optional<std::string> contentOf(const fs::path& path)
{
    std::error_code error;
    if (!fs::is_regular_file(path, error) || fs::file_size(path, error) > mostBytes)
        return {};
    std::ifstream file(path, std::ios::binary);
    std::string content{std::istreambuf_iterator<char>(file), {}};
    if (!file.is_open() || file.bad())
        return {};
    return content;
}

struct FreeXml {
    void operator()(xmlChar* text) const { xmlFree(text); }
    void operator()(xmlURI* uri) const { xmlFreeURI(uri); }
};

// The path that a relative location stands for, as written; nothing when it is absolute or no
// location.
std::optional<fs::path> relativePath(const std::string& location)
{
    const std::unique_ptr<xmlURI, FreeXml> uri(xmlParseURI(location.c_str()));
    if (uri == nullptr || uri->path == nullptr || uri->scheme != nullptr ||
        uri->server != nullptr || uri->authority != nullptr)
        return {};
    const fs::path path = fs::u8path(uri->path);
    if (path.has_root_path())
        return {};
    return path;
}

bool isSchemaElement(const xmlNode& node, const char* name)
{
    return node.type == XML_ELEMENT_NODE && node.ns != nullptr &&
           xmlStrEqual(node.ns->href,
                       reinterpret_cast<const xmlChar*>("http://www.w3.org/2001/XMLSchema")) != 0 &&
           xmlStrEqual(node.name, reinterpret_cast<const xmlChar*>(name)) != 0;
}

// An attribute in a text: from its name to behind its closing quote.
struct AttributeText {
    std::size_t begin;
    std::size_t valueBegin;
    std::size_t valueEnd;
    std::size_t end() const { return valueEnd + 1; }
};

// The next attribute schemaLocation from an offset on. One in a comment is found too.
std::optional<AttributeText> nextLocation(const std::string& text, std::size_t from)
{
    constexpr std::string_view name = "schemaLocation";
    constexpr const char* blanks = " \t\r\n";
    for (std::size_t begin = text.find(name, from); begin != std::string::npos;
         begin = text.find(name, begin + 1)) {
        const std::size_t equals = text.find_first_not_of(blanks, begin + name.size());
        if (equals == std::string::npos || text[equals] != '=')
            continue;
        const std::size_t quote = text.find_first_not_of(blanks, equals + 1);
        if (quote == std::string::npos || (text[quote] != '"' && text[quote] != '\''))
            continue;
        const std::size_t end = text.find(text[quote], quote + 1);
        if (end == std::string::npos)
            return {};
        return AttributeText{begin, quote + 1, end};
    }
    return {};
}

thread_local const SchemaFiles* offeredFiles = nullptr;
thread_local xmlParserInputBufferCreateFilenameFunc openerBefore = nullptr;

xmlParserInputBuffer* openOffered(const char* address, xmlCharEncoding /*encoding*/)
{
    const std::string* text = offeredFiles->textAt(address);
    return text == nullptr
               ? nullptr
               : xmlParserInputBufferCreateMem(text->data(), static_cast<int>(text->size()),
                                               XML_CHAR_ENCODING_NONE);
}

} // namespace

SchemaFiles::SchemaFiles(const fs::path& mainFile)
    : m_folder(mainFile.parent_path()), m_files{{mainFile.filename(), {}}}
{
    // Reading a file adds those that it names.
    for (std::size_t number = 0; number < m_files.size() && m_faults.empty(); ++number)
        read(number);
}

// Every address names the root folder, spelled in its own way: libxml2 asks the system whether a
// file of that name exists, and looks in the machine's catalogs for one that does not.
std::string SchemaFiles::addressOf(std::size_t number)
{
    std::string address = "file:///.";
    for (; number > 0; --number)
        address += "/.";
    return address;
}

const std::string* SchemaFiles::textAt(const std::string& address) const
{
    for (std::size_t number = 0; number < m_files.size(); ++number) {
        if (addressOf(number) == address)
            return &m_files[number].text;
    }
    return nullptr;
}

std::string SchemaFiles::withNames(std::string text) const
{
    // From the longest address on: it begins with the others.
    for (std::size_t number = m_files.size(); number-- > 0;) {
        const std::string address = addressOf(number);
        for (std::size_t at = text.find(address); at != std::string::npos; at = text.find(address))
            text.replace(at, address.size(), m_files[number].path.generic_u8string());
    }
    return text;
}

void SchemaFiles::read(std::size_t number)
{
    const fs::path path = m_files[number].path;
    std::optional<std::string> content = contentOf(m_folder / path);
    if (!content.has_value()) {
        m_faults.push_back({"The file cannot be read.", 0, {}, {}, path.generic_u8string()});
        return;
    }
    m_files[number].text = std::move(*content);
    const ParsedXml tree =
        parseClosed(m_files[number].text, Declarations::NoExternalEntity, m_faults);
    if (tree != nullptr)
        m_files[number].text = relocated(number, *tree);
    for (SchemaFault& fault : m_faults)
        fault.schemaFile = path.generic_u8string();
}

// The file's text with addresses for locations. The lines stay where they are: faults name them.
std::string SchemaFiles::relocated(std::size_t number, const xmlDoc& tree)
{
    std::map<std::string, std::optional<std::string>> addresses; // by location
    const xmlNode* root = tree.children;
    while (root != nullptr && root->type != XML_ELEMENT_NODE)
        root = root->next;
    for (xmlNode* node = root->children; node != nullptr; node = node->next) {
        const bool isImport = isSchemaElement(*node, "import");
        if (!isImport && !isSchemaElement(*node, "include") && !isSchemaElement(*node, "redefine"))
            continue;
        const std::unique_ptr<xmlChar, FreeXml> value(
            xmlGetNoNsProp(node, reinterpret_cast<const xmlChar*>("schemaLocation")));
        if (value == nullptr)
            continue;
        const std::string location = reinterpret_cast<const char*>(value.get());
        const auto address = addressFor(location, m_files[number].path.parent_path());
        if (!address.has_value() && !isImport)
            m_faults.push_back(
                {"The file '" + location + "' cannot be had from the schema's folder.",
                 xmlGetLineNo(node),
                 {},
                 {},
                 {}});
        addresses[location] = address;
    }

    const std::string& text = m_files[number].text;
    std::string result;
    std::size_t copied = 0;
    for (auto found = nextLocation(text, 0); found.has_value();
         found = nextLocation(text, found->end())) {
        const auto address =
            addresses.find(text.substr(found->valueBegin, found->valueEnd - found->valueBegin));
        if (address == addresses.end())
            continue;
        const std::size_t end = address->second.has_value() ? found->valueBegin : found->begin;
        result.append(text, copied, end - copied);
        result += address->second.value_or("");
        copied = address->second.has_value() ? found->valueEnd : found->end();
    }
    return result.append(text, copied);
}

std::optional<std::string> SchemaFiles::addressFor(const std::string& location,
                                                   const fs::path& from)
{
    const std::optional<fs::path> relative = relativePath(location);
    if (!relative.has_value())
        return {};
    const fs::path path = (from / *relative).lexically_normal();
    std::error_code error;
    if (*path.begin() == ".." || !fs::is_regular_file(m_folder / path, error))
        return {};
    const auto known = std::find_if(m_files.begin(), m_files.end(),
                                    [&](const File& file) { return file.path == path; });
    if (known != m_files.end())
        return addressOf(static_cast<std::size_t>(known - m_files.begin()));
    if (m_files.size() == mostFiles)
        return {};
    m_files.push_back({path, {}});
    return addressOf(m_files.size() - 1);
}

OfferedFiles::OfferedFiles(const SchemaFiles& files)
{
    offeredFiles = &files;
    openerBefore = xmlParserInputBufferCreateFilenameDefault(openOffered);
}

OfferedFiles::~OfferedFiles()
{
    xmlParserInputBufferCreateFilenameDefault(openerBefore);
    offeredFiles = nullptr;
}

} // namespace q7
