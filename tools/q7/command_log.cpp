// q7 log: switches the library's log, shows it, and says where it is.

#include "commands.h"
#include "data_folder_list.h"
#include "file_path.h"
#include "log_story.h"

#include <chrono>
#include <ctime>
#include <deque>
#include <fstream>
#include <iomanip>
#include <nlohmann/json.hpp>
#include <sstream>

namespace q7tool
{
namespace
{

namespace fs = std::filesystem;

struct LogOptions {
    std::string folder;
    std::string file;
    std::size_t last = 0;
    bool erase = false;
};

std::string logPath(const LogOptions& options)
{
    return dataFolderFacts(options.folder).folder + logFileName;
}

bool fileExists(const std::string& path)
{
    std::error_code ignored;
    return fs::exists(filePath(path), ignored);
}

Failure notWritable(const std::string& path)
{
    return {Exit::Refused,
            "O arquivo " + path + " não pôde ser gravado.",
            "Dê permissão de escrita na pasta aos usuários da aplicação, ou escolha outra pasta.",
            {}};
}

Exit switchOn(const LogOptions& options, Answer& answer)
{
    const std::string path = logPath(options);
    const bool existed = fileExists(path);
    // Appending keeps what is there.
    if (!std::ofstream(filePath(path), std::ios::app | std::ios::binary))
        throw notWritable(path);
    answer.fact("log", "Log", path);
    answer.fact("ligado", existed ? "Já estava ligado" : "Ligado", true);
    answer.remark("Ele recebe o CSC e dados de clientes: desligue e apague quando tiver servido.");
    return Exit::Done;
}

std::string timeStamp()
{
    const std::time_t now = std::time(nullptr);
    std::ostringstream text;
    text << std::put_time(std::localtime(&now), "%Y%m%d-%H%M%S"); // NOLINT(concurrency-mt-unsafe)
    return text.str();
}

Exit switchOff(const LogOptions& options, Answer& answer)
{
    const std::string path = logPath(options);
    if (!fileExists(path)) {
        answer.fact("ligado", "Já estava desligado", false, path + " não existe");
        return Exit::Done;
    }
    std::error_code error;
    std::string kept;
    if (options.erase) {
        fs::remove(filePath(path), error);
    } else {
        kept =
            path.substr(0, path.size() - std::string(".txt").size()) + '-' + timeStamp() + ".txt";
        fs::rename(filePath(path), filePath(kept), error);
    }
    if (error)
        throw notWritable(path);
    answer.fact("ligado", "Desligado", false, "sim");
    if (kept.empty())
        answer.fact("apagado", "Apagado", path);
    else
        answer.fact("guardado", "O que ele tinha está em", kept);
    return Exit::Done;
}

Exit show(const LogOptions& options, Answer& answer)
{
    const std::string path = options.file.empty() ? logPath(options) : options.file;
    std::ifstream log(filePath(path), std::ios::binary);
    std::error_code error;
    if (!log || fs::is_directory(filePath(path), error))
        throw Failure{Exit::Usage,
                      "Não há log em " + path + '.',
                      "Ligue-o com q7 log ligar e repita a operação; ou indique o arquivo.",
                      {}};
    std::deque<std::pair<Json, std::string>> last;
    bool any = false;
    LogStory story([&](const Json& object, const std::string& text) {
        any = true;
        if (options.last == 0) {
            answer.record(object, text);
            return;
        }
        last.emplace_back(object, text);
        if (last.size() > options.last)
            last.pop_front();
    });
    readLog(log, [&](const LogRecord& record) { story.take(record); });
    story.end();
    for (const auto& [object, text] : last)
        answer.record(object, text);
    if (!any)
        answer.remark("O log " + path + " ainda não tem nada.");
    return Exit::Done;
}

} // namespace

void addLog(const CommandLine& line)
{
    CLI::App* log = line.program.add_subcommand(
        "log", "Liga, desliga e mostra o log da biblioteca, e diz em que pasta ele fica");
    log->require_subcommand(1);
    auto options = std::make_shared<LogOptions>();
    const auto add = [&](const char* name, const char* what,
                         Exit (*perform)(const LogOptions&, Answer&)) {
        CLI::App* command = log->add_subcommand(name, what);
        command
            ->add_option("--pasta", options->folder,
                         "A pasta da aplicação, em vez da que está em vigor")
            ->option_text("PASTA");
        command->callback([line, options, perform] {
            line.action = [options, perform](Answer& answer) { return perform(*options, answer); };
        });
        return command;
    };
    add("ligar", "Cria o arquivo log_q7.txt: daí em diante cada chamada é gravada", switchOn);
    add("desligar", "Tira o arquivo do lugar, guardando o que ele tem", switchOff)
        ->add_flag("--apagar", options->erase, "Apaga em vez de guardar");
    CLI::App* shown = add("mostrar", "Mostra cada chamada e explica os bytes enviados", show);
    shown->add_option("ARQUIVO", options->file, "Outro log que não o que está em vigor")
        ->option_text(" ");
    shown->add_option("--ultimas", options->last, "Só as últimas linhas")->option_text("N");
    add("pasta", "Diz qual é a pasta de dados, de onde vem e se pode ser gravada",
        [](const LogOptions& chosen, Answer& answer) {
            tellDataFolder(dataFolderFacts(chosen.folder), answer);
            return Exit::Done;
        });
}

} // namespace q7tool
