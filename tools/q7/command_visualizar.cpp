// q7 visualizar: what would be printed, as pictures and text, without any printer.

#include "commands.h"
#include "document_printing.h"
#include "file_job.h"
#include "file_path.h"
#include "model_names.h"
#include "open_printer.h"
#include "recorded_connection.h"
#include "table_glyphs.h"
#include "text.h"

#include <array>
#include <fstream>
#include <nlohmann/json.hpp>
#include <thread>

namespace q7tool
{
namespace
{

struct ViewOptions {
    DocumentOptions document;
    std::string folder;
    std::string model;
};

enum class Content { Document, Log, Bytes };

Content contentOf(std::ifstream& file)
{
    std::array<char, 4096> head = {};
    file.read(head.data(), head.size());
    std::string_view text(head.data(), static_cast<std::size_t>(file.gcount()));
    file.clear();
    file.seekg(0);
    if (startsWith(text, "\xEF\xBB\xBF"))
        text.remove_prefix(3);
    const std::size_t begin = text.find_first_not_of(" \t\r\n");
    if (begin != std::string_view::npos && text[begin] == '<')
        return Content::Document;
    return text.find("].....[") != std::string_view::npos ? Content::Log : Content::Bytes;
}

virtual_printer::Model modelNamed(const std::string& name)
{
    const virtual_printer::Model* model = virtual_printer::findModel(name.empty() ? "VANTA" : name);
    if (model == nullptr)
        throw Failure{Exit::Usage,
                      "O modelo \"" + name + "\" não existe.",
                      "Os modelos são " + allModelNames() + '.',
                      {}};
    return *model;
}

/** The virtual printer on a thread of its own, for one connection. */
class PrinterAtHome
{
public:
    PrinterAtHome(const virtual_printer::Workshop& workshop, const virtual_printer::Model& model)
        : m_server(settingsFor(model),
                   [&workshop](int number, const virtual_printer::Model& ofConnection) {
                       return std::make_unique<virtual_printer::FileJob>(workshop, ofConnection,
                                                                         number);
                   }),
          m_thread([this] { m_server.run(1); })
    {
    }
    ~PrinterAtHome()
    {
        if (m_thread.joinable()) {
            m_server.stop();
            m_thread.join();
        }
    }
    PrinterAtHome(const PrinterAtHome&) = delete;
    PrinterAtHome& operator=(const PrinterAtHome&) = delete;

    int port() const { return m_server.port(); }
    /** Returns once the connection has ended and everything is drawn. */
    void waitForEnd() { m_thread.join(); }

private:
    static virtual_printer::ServerSettings settingsFor(const virtual_printer::Model& model)
    {
        virtual_printer::ServerSettings settings;
        settings.model = model;
        return settings;
    }

    virtual_printer::Server m_server;
    std::thread m_thread;
};

/** Prints the document as a program would, on a printer that is here. */
void drawDocument(const CommonOptions& common, const ViewOptions& options,
                  const virtual_printer::Workshop& workshop, const virtual_printer::Model& model)
{
    const PrintableDocument document = readDocument(options.document);
    const PrinterLibrary library(common.library);
    PrinterAtHome home(workshop, model);
    PrinterAddress address;
    address.model = std::string(model.name);
    address.place = "127.0.0.1";
    address.number = home.port();
    OpenPrinter printer(library, address);
    printDocument(library, document);
    printer.close();
    home.waitForEnd();
}

Exit view(const CommonOptions& common, const ViewOptions& options, Answer& answer)
{
    const virtual_printer::Model model = modelNamed(options.model);
    std::ifstream file(filePath(options.document.file), std::ios::binary);
    std::error_code error;
    if (!file || std::filesystem::is_directory(filePath(options.document.file), error))
        throw Failure{Exit::Usage,
                      "O arquivo " + options.document.file + " não pôde ser lido.",
                      "Confira o nome e a pasta; nomes com espaços vão entre aspas.",
                      {}};
    std::filesystem::create_directories(filePath(options.folder), error);
    if (error)
        throw Failure{Exit::Usage,
                      "A pasta " + options.folder + " não pôde ser criada.",
                      "Indique outra pasta com -o.",
                      {}};

    virtual_printer::TableGlyphs glyphs;
    std::vector<std::vector<Json>> made;
    int faults = 0;
    virtual_printer::Workshop workshop;
    workshop.stem = utf8Path(filePath(options.folder) / filePath(options.document.file).stem());
    workshop.looks.glyphs = &glyphs;
    workshop.looks.language = virtual_printer::Language::Portuguese;
    workshop.wrote = [&](const std::string& path) { made.push_back({path}); };
    workshop.ended = [&](const virtual_printer::JobEnd& end) { faults += end.faults; };
    switch (contentOf(file)) {
    case Content::Document:
        drawDocument(common, options, workshop, model);
        break;
    case Content::Log:
        if (virtual_printer::drawLog(file, workshop, model, !options.model.empty(),
                                     [](std::uint64_t) {}) == 0)
            throw Failure{Exit::Document,
                          "O log não tem nada que tenha sido enviado a uma impressora.",
                          "Ligue o log antes de imprimir (q7 log ligar) e repita a impressão.",
                          {}};
        break;
    default:
        virtual_printer::drawBytes(file, workshop, model);
    }
    answer.table("arquivos", {{"arquivo", "Gravado"}}, made,
                 "Nada sairia no papel: veja a lista de comandos em " + workshop.stem + "-1.list");
    if (faults > 0)
        answer.fact("nao_entendidos", "Comandos que a impressora não entenderia", faults);
    return Exit::Done;
}

} // namespace

void addVisualizar(const CommandLine& line)
{
    CLI::App* command = line.program.add_subcommand(
        "visualizar", "Desenha o que seria impresso: de um XML, de um log ou de bytes");
    auto options = std::make_shared<ViewOptions>();
    addDocumentOptions(*command, options->document);
    command->get_option("ARQUIVO")->description("O XML de um documento, um log ou bytes");
    command->add_option("-o,--saida", options->folder, "A pasta para as imagens e os textos")
        ->option_text("PASTA (obrigatório)")
        ->required();
    command->add_option("--modelo", options->model, "O modelo da impressora; VANTA, ou o do log")
        ->option_text("MODELO");
    command->footer(
        "Grava, por conexão: os bytes (.bin), os comandos (.list) e, por cupom, a imagem\n"
        "(.png) e o texto (.txt).\n"
        "Exemplos:\n"
        "  q7 visualizar nfce.xml -o cupons\n"
        "  q7 visualizar log_q7.txt -o cupons --modelo VESPA");
    command->callback([line, options] {
        line.action = [&common = line.common, options](Answer& answer) {
            return view(common, *options, answer);
        };
    });
}

} // namespace q7tool
