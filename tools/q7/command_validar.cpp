// q7 validar: a document against the official schema of its kind.

#include "commands.h"
#include "config_file.h"
#include "file_path.h"
#include "fiscal_file.h"
#include "q7_impressora.h"
#include "text.h"
#include "xsd_validator.h"

#include <nlohmann/json.hpp>

namespace q7tool
{
namespace
{

struct ValidationOptions {
    std::string file;
    std::string schemas;
};

struct Schema {
    int kind;
    int version; // 1: with the authorisation
    const char* name;
};

Schema schemaOf(const XmlFile& file)
{
    // What goes into the SAT has no key yet.
    const bool isInput = file.id.empty();
    if (file.root == "CFe")
        return isInput ? Schema{q7::XsdCfeSaleInput, 0, "CF-e de venda, entrada do SAT"}
                       : Schema{q7::XsdCfeSale, 0, "CF-e de venda"};
    if (file.root == "CFeCanc")
        return isInput
                   ? Schema{q7::XsdCfeCancellationInput, 0, "CF-e de cancelamento, entrada do SAT"}
                   : Schema{q7::XsdCfeCancellation, 0, "CF-e de cancelamento"};
    if (file.root != "nfeProc" && file.root != "NFe")
        throw Failure{Exit::Document,
                      "Não há esquema para um XML com a raiz \"" + file.root + "\".",
                      "Use um CF-e (CFe, CFeCanc), uma NF-e ou uma NFC-e (nfeProc, NFe).",
                      {}};
    const int version = file.root == "nfeProc" ? 1 : 0;
    if (file.version == "3.10")
        return {q7::XsdNfe310, version, "NF-e ou NFC-e, leiaute 3.10"};
    return {q7::XsdNfe400, version, "NF-e ou NFC-e, leiaute 4.00"};
}

std::string schemaFolder(const std::string& chosen)
{
    std::string folder =
        chosen.empty() ? q7::config::caminhoXsd(q7::IniFile(q7::configFilePath())).toStdString()
                       : chosen;
    if (!chosen.empty() && !endsWith(folder, "/") && !endsWith(folder, "\\"))
        folder += '/';
    return folder;
}

std::string joined(const std::vector<std::string>& texts)
{
    std::string text;
    for (const std::string& one : texts)
        text += (text.empty() ? "" : ", ") + one;
    return text;
}

/** The engine's words without the namespaces, which are always the same. */
std::string withoutNamespaces(const std::string& text)
{
    std::string plain;
    for (std::size_t at = 0; at < text.size(); ++at) {
        const std::size_t end = text.find('}', at);
        if (text.compare(at, 5, "{http") == 0 && end != std::string::npos)
            at = end;
        else
            plain += text[at];
    }
    return plain;
}

std::string inWords(const q7::SchemaFault& fault)
{
    std::string text = "Linha " + (fault.line > 0 ? std::to_string(fault.line) : "?");
    if (!fault.place.empty())
        text += ", " + fault.place;
    if (!fault.expected.empty())
        text += "\n    Esperado: " + joined(fault.expected);
    return text + "\n    " + withoutNamespaces(fault.description);
}

Exit validate(const ValidationOptions& options, Answer& answer)
{
    const XmlFile file = readXmlFile(options.file);
    const Schema schema = schemaOf(file);
    const std::string folder = schemaFolder(options.schemas);
    const q7::XsdReport report = q7::checkXsd(QByteArray::fromStdString(file.text), schema.kind,
                                              schema.version, QString::fromStdString(folder));
    answer.fact("esquema", "Esquema", schema.name);
    if (report.result == Q7_ERR_XSD_MISSING)
        throw Failure{Exit::Refused, "O esquema não foi encontrado na pasta \"" + folder + "\".",
                      "Indique com --esquemas a pasta que contém xsd/SAT ou xsd/NFe/4.00, com os "
                      "arquivos oficiais.",
                      report.result};
    std::string brokenSchema;
    std::vector<std::vector<Json>> rows;
    for (const q7::SchemaFault& fault : report.faults) {
        if (!fault.schemaFile.empty())
            brokenSchema = fault.schemaFile;
        rows.push_back({fault.line > 0 ? Json(fault.line) : Json(), fault.place, fault.expected,
                        fault.description});
        answer.remark(inWords(fault));
    }
    if (!answer.isForPeople())
        answer.table("falhas", {{"linha", ""}, {"lugar", ""}, {"esperado", ""}, {"descricao", ""}},
                     rows, "");
    if (!brokenSchema.empty())
        throw Failure{Exit::Refused, "O arquivo " + brokenSchema + " do esquema tem defeito.",
                      "Baixe de novo o pacote de esquemas oficial.", report.result};
    if (report.result != Q7_OK)
        throw Failure{Exit::Document,
                      "O documento não segue o esquema: " + std::to_string(report.faults.size()) +
                          (report.faults.size() == 1 ? " falha." : " falhas."),
                      "Corrija o programa que gera o XML nos lugares indicados.", report.result};
    answer.fact("valido", "Válido", true);
    return Exit::Done;
}

} // namespace

void addValidar(const CommandLine& line)
{
    CLI::App* command = line.program.add_subcommand(
        "validar", "Confere um XML com o esquema oficial e mostra todas as falhas");
    auto options = std::make_shared<ValidationOptions>();
    command->add_option("ARQUIVO", options->file, "O XML")
        ->option_text("(obrigatório)")
        ->required();
    command
        ->add_option(
            "--esquemas", options->schemas,
            "A pasta que contém xsd/SAT e xsd/NFe; sem ela, a de q7_conf.ini (caminho_xsd)")
        ->option_text("PASTA");
    command->footer("Sai com 5 quando o documento não segue o esquema.");
    command->callback([line, options] {
        line.action = [options](Answer& answer) { return validate(*options, answer); };
    });
}

} // namespace q7tool
