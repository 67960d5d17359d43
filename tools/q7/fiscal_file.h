// A file with a fiscal document: what it is, and its text as the library takes it.
#pragma once

#include <string>

namespace q7tool
{

/** What an XML file holds, as far as it tells by itself. */
struct XmlFile {
    std::string text;      // UTF-8, whatever the file's encoding
    std::string root;      // the root element's name
    std::string version;   // the layout's: attribute versao of infNFe
    std::string model;     // ide/mod: 55 NF-e, 65 NFC-e
    std::string id;        // attribute Id of infCFe or infNFe: a prefix and the access key
    std::string cancelled; // attribute or element chCanc: the same of the sale that is cancelled
    std::string signature; // assinaturaQRCODE
};

/** Throws Failure for a file that cannot be read, is not well-formed XML, or has what the library
 *  refuses: a document type, more than 256 levels, more than 32 MB. */
XmlFile readXmlFile(const std::string& path);

/** A document that the library prints. */
struct FiscalFile {
    enum class Kind { SatSale, SatCancellation, Nfce };

    Kind kind = Kind::Nfce;
    std::string text;      // UTF-8
    std::string key;       // access key; of a cancellation, that of the sale that it cancels
    std::string signature; // of a SAT sale: assinaturaQRCODE
};

/** Throws Failure as readXmlFile() does, and for XML that is none of the documents. */
FiscalFile readFiscalFile(const std::string& path);

/** "CF-e de venda (SAT)" */
const char* nameOf(FiscalFile::Kind kind);

} // namespace q7tool
