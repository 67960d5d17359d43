#include "xsd_validator.h"

#include "compiled_schema.h"
#include "config_file.h"
#include "log.h"
#include "q7_impressora.h"

#include <QTextCodec>
#include <regex>

namespace q7
{
namespace
{

constexpr int processedNote = 1;

// Empty for a kind that has no schema: its path is then the folder, which is no schema file.
const char* schemaFile(int kind, int version)
{
    switch (kind) {
    case XsdCfeSale:
        return "xsd/SAT/XML_SAT.xsd";
    case XsdCfeCancellation:
        return "xsd/SAT/XML_SAT_Canc.xsd";
    case XsdNfe310:
        return version == processedNote ? "xsd/NFe/3.10/procNFe_v3.10.xsd"
                                        : "xsd/NFe/3.10/nfe_v3.10.xsd";
    case XsdNfe400:
        return version == processedNote ? "xsd/NFe/4.00/procNFe_v4.00.xsd"
                                        : "xsd/NFe/4.00/nfe_v4.00.xsd";
    case XsdCfeSaleInput:
        return "xsd/SAT/XML_SAT_ENT.xsd";
    case XsdCfeCancellationInput:
        return "xsd/SAT/XML_SAT_Canc_ENT.xsd";
    default:
        return "";
    }
}

std::filesystem::path pathOf(const QString& text)
{
    return std::filesystem::u8path(text.toUtf8().toStdString());
}

// The encoding that the prologue declares, or that a byte order mark tells; empty when neither does.
QByteArray encodingOf(const QByteArray& document)
{
    if (const QTextCodec* codec = QTextCodec::codecForUtfText(document, nullptr))
        return codec->name();
    static const std::regex declaration(R"re(^<\?xml\s[^>]*\bencoding\s*=\s*["']([^"'>]*)["'])re");
    constexpr int longestPrologue = 256;
    const QByteArray prologue = document.left(longestPrologue);
    std::cmatch found;
    if (!std::regex_search(prologue.begin(), prologue.end(), found, declaration))
        return {};
    return QByteArray::fromStdString(found[1]);
}

// A text in UTF-8, null when its bytes are none of its encoding. One that says of itself that it is
// UTF-8, or nothing, stays as it is.
QByteArray inUtf8(const QByteArray& document)
{
    const QByteArray encoding = encodingOf(document);
    if (encoding.isEmpty() || encoding.toUpper() == "UTF-8")
        return document;
    const QTextCodec* codec = QTextCodec::codecForName(encoding);
    if (codec == nullptr)
        return {};
    QTextCodec::ConverterState state;
    const QByteArray text =
        codec->toUnicode(document.constData(), document.size(), &state).toUtf8();
    return state.invalidChars + state.remainingChars > 0 ? QByteArray() : text;
}

int report(const QString& text, int result)
{
    writeLog(LogKind::Information, text);
    return result;
}

} // namespace

XsdReport checkXsd(const QByteArray& document, int kind, int version, const QString& schemaFolder)
{
    const std::filesystem::path path = pathOf(schemaFolder + schemaFile(kind, version));
    std::error_code error;
    if (!std::filesystem::exists(path, error))
        return {Q7_ERR_XSD_MISSING, {}};
    const CompiledSchema schema(path);
    SchemaFaults faults = schema.faults();
    if (faults.empty()) {
        const QByteArray text = inUtf8(document);
        if (text.isNull() && !document.isEmpty())
            faults.push_back({"The text is not in the encoding that it declares.", 1, {}, {}, {}});
        else
            faults = schema.check({text.constData(), static_cast<std::size_t>(text.size())});
    }
    return {faults.empty() ? Q7_OK : Q7_ERR_XSD, std::move(faults)};
}

int validateXsd(const QByteArray& document, int kind, int version)
{
    ensureConfigFile();
    const XsdReport outcome =
        checkXsd(document, kind, version, config::caminhoXsd(IniFile(configFilePath())));
    if (outcome.result == Q7_ERR_XSD_MISSING)
        return report(QString("XSD NAO ENCONTRADO. COD:%1").arg(outcome.result), outcome.result);
    if (outcome.result == Q7_OK)
        return report("SUCESSO", Q7_OK);
    const SchemaFault& last = outcome.faults.back();
    QString text =
        QString("ERRO XSD. COD:%1 ").arg(outcome.result) + QString::fromStdString(last.description);
    if (last.line > 0)
        text += QString(" (linha %1)").arg(last.line);
    return report(text, outcome.result);
}

} // namespace q7
