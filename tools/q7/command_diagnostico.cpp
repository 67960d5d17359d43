// q7 diagnostico: everything that the support asks for, in one file.

#include "commands.h"
#include "data_folder_list.h"
#include "device_list.h"
#include "file_content.h"
#include "file_path.h"
#include "log_story.h"
#include "open_printer.h"
#include "privacy.h"
#include "system_name.h"

#include <deque>
#include <fstream>
#include <nlohmann/json.hpp>

namespace q7tool
{
namespace
{

constexpr std::size_t mostLogLines = 1000;
constexpr std::size_t largestIni = 65536;
constexpr const char* iniNames[] = {"q7_usb.ini", "q7_conf.ini", "q7_fiscal.ini"};

struct DiagnosisOptions {
    std::string printer;
    std::string folder;
    std::string output = "q7_diagnostico.txt";
};

/** Several lines: as they are for people, in a list for programs. */
void tellLines(const std::string& key, const std::vector<std::string>& lines, Answer& answer)
{
    if (answer.isForPeople()) {
        for (const std::string& line : lines)
            answer.remark(line);
    } else {
        answer.fact(key, "", Json(lines));
    }
}

/** One part of the diagnosis; its failure is part of it, too. */
void part(const std::string& key, const std::string& title, Answer& answer,
          const std::function<void()>& tell)
{
    answer.beginSection(key, title);
    try {
        tell();
    } catch (const Failure& failure) {
        answer.fact("falha", "O que houve", failure.happened);
        answer.fact("codigo", "Código", failure.code ? Json(*failure.code) : Json(),
                    codeInWords(failure));
        answer.fact("o_que_fazer", "O que fazer", failure.todo);
    }
    answer.endSection();
}

void tellPrinter(const CommonOptions& common, const PrinterAddress& address, Answer& answer)
{
    answer.fact("impressora", "Impressora", address.text());
    const PrinterLibrary library(common.library);
    OpenPrinter printer(library, address);
    tellState(printer.state(), answer);
    printer.close();
}

void tellIniFiles(const std::string& folder, Answer& answer)
{
    for (const char* name : iniNames) {
        std::error_code ignored;
        if (!std::filesystem::exists(filePath(folder + name), ignored))
            continue;
        std::vector<std::string> lines;
        std::istringstream text(withoutSecrets(contentOf(folder + name, largestIni)));
        for (std::string line; std::getline(text, line);)
            lines.push_back(line);
        answer.beginSection(name, name);
        tellLines("linhas", lines, answer);
        answer.endSection();
    }
}

void tellLog(const std::string& folder, Answer& answer)
{
    std::ifstream log(filePath(folder + logFileName), std::ios::binary);
    if (!log) {
        answer.remark("O log está desligado.");
        return;
    }
    std::deque<std::string> last;
    LogStory story([&](const Json&, const std::string& text) {
        last.push_back(text);
        if (last.size() > mostLogLines)
            last.pop_front();
    });
    readLog(log, [&](const LogRecord& record) {
        LogRecord shown = record;
        shown.message = withoutDocument(record.message);
        story.take(shown);
    });
    story.end();
    tellLines("linhas", {last.begin(), last.end()}, answer);
}

Exit diagnose(const CommonOptions& common, const DiagnosisOptions& options, Answer& answer)
{
    std::optional<PrinterAddress> address;
    if (!options.printer.empty())
        address = parsePrinterAddress(options.printer);
    std::ofstream file(filePath(options.output), std::ios::binary);
    const Sink sink = [&](std::string_view text) { file << withoutPersonalNumbers(text); };
    const std::unique_ptr<Answer> report =
        common.json ? makeJsonAnswer(sink) : makeTextAnswer(sink, sink);
    const DataFolderFacts facts = dataFolderFacts(options.folder);
    part("programa", "Programa e biblioteca", *report, [&] {
        report->fact("sistema", "Sistema", systemName());
        tellVersion(common, *report);
    });
    if (address)
        part("impressora", "Impressora", *report, [&] { tellPrinter(common, *address, *report); });
    tellSerialPorts(serialPorts(), *report);
    tellUsbPrinters(usbPrinters(), *report);
    part("dados", "Pasta de dados", *report, [&] {
        tellDataFolder(facts, *report);
        tellIniFiles(facts.folder, *report);
    });
    part("log", "Log", *report, [&] { tellLog(facts.folder, *report); });
    tellModels(*report);
    report->finish(Exit::Done);
    file.close();
    if (!file)
        throw Failure{Exit::Usage,
                      "O arquivo " + options.output + " não pôde ser gravado.",
                      "Indique outro lugar com -o.",
                      {}};
    answer.fact("arquivo", "Diagnóstico gravado em", options.output);
    answer.remark(
        "CPF, CNPJ, CSC e documentos foram omitidos; confira antes de mandar ao suporte.");
    return Exit::Done;
}

} // namespace

void addDiagnostico(const CommandLine& line)
{
    CLI::App* command = line.program.add_subcommand(
        "diagnostico", "Junta num arquivo o que o suporte precisa, sem dados de clientes");
    auto options = std::make_shared<DiagnosisOptions>();
    command->add_option("-o,--saida", options->output, "O arquivo a gravar")
        ->option_text("ARQUIVO");
    addPrinterOption(*command, options->printer, false);
    command->add_option("--pasta", options->folder, "A pasta de dados da aplicação")
        ->option_text("PASTA");
    command->footer("Exemplo:\n  q7 diagnostico --impressora VANTA@net:192.168.0.10 -o caso.txt");
    command->callback([line, options] {
        line.action = [&common = line.common, options](Answer& answer) {
            return diagnose(common, *options, answer);
        };
    });
}

} // namespace q7tool
