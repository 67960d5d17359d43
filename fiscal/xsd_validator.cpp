#include "xsd_validator.h"

#include "config_file.h"
#include "log.h"
#include "q7_impressora.h"
#include "schema_engine.h"

#include <QFile>

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

QString schemaPath(int kind, int version)
{
    ensureConfigFile();
    return config::caminhoXsd(IniFile(configFilePath())) + schemaFile(kind, version);
}

int report(const QString& text, int result)
{
    writeLog(LogKind::Information, text);
    return result;
}

} // namespace

int validateXsd(const QByteArray& document, int kind, int version)
{
    const QString path = schemaPath(kind, version);
    if (!QFile::exists(path))
        return report(QString("XSD NAO ENCONTRADO. COD:%1").arg(int{Q7_ERR_XSD_MISSING}),
                      Q7_ERR_XSD_MISSING);

    const SchemaVerdict verdict = checkAgainstSchema(document, path);
    if (verdict.conforms)
        return report("SUCESSO", Q7_OK);
    QString text = QString("ERRO XSD. COD:%1 ").arg(int{Q7_ERR_XSD}) + verdict.description;
    if (verdict.line > 0)
        text += QString(" (linha %1)").arg(verdict.line);
    return report(text, Q7_ERR_XSD);
}

} // namespace q7
