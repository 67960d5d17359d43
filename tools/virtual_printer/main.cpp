#include "command_log.h"
#include "file_job.h"
#include "font_glyphs.h"
#include "graphic_file.h"
#include "options.h"

#include <csignal>
#include <filesystem>
#include <iostream>
#include <iterator>

namespace
{

using namespace virtual_printer;

void say(const std::string& line)
{
    std::cout << line << std::endl;
}

Server* runningServer = nullptr;

void onSignal(int)
{
    runningServer->stop();
}

void serve(const Options& options, const Workshop& workshop)
{
    Server server(options.server, [&](int number) {
        return std::make_unique<FileJob>(workshop, options.server.model, number);
    });
    runningServer = &server;
    struct sigaction action = {};
    action.sa_handler = onSignal;
    sigaction(SIGINT, &action, nullptr);
    sigaction(SIGTERM, &action, nullptr);

    if (options.server.tcp) {
        say("port " + std::to_string(server.port()));
    }
    if (options.server.serial) {
        say("serial " + server.serialPath());
    }
    if (!options.portFile.empty()) {
        // A reader that waits for the file must not find it half written.
        const std::string partial = options.portFile + ".part";
        openForWriting(partial) << server.port() << '\n';
        std::filesystem::rename(partial, options.portFile);
    }
    server.run(options.jobs);
}

std::ifstream openForReading(const std::string& path)
{
    std::ifstream file(path, std::ios::binary);
    if (!file) {
        throw std::system_error(errno, std::generic_category(), path);
    }
    return file;
}

void drawFile(const Options& options, const Workshop& workshop)
{
    std::ifstream file = openForReading(options.input);
    const std::string bytes((std::istreambuf_iterator<char>(file)), {});
    FileJob job(workshop, options.server.model, 1);
    runJob(job, bytes, options.server.model);
}

void drawLog(const Options& options, const Workshop& workshop)
{
    std::ifstream file = openForReading(options.inputLog);
    std::vector<int> badLines;
    const std::vector<LoggedJob> jobs = readCommandLog(file, badLines);
    for (const int line : badLines) {
        std::cerr << options.inputLog << ':' << line << ": not hexadecimal to its end\n";
    }
    int number = 0;
    for (const LoggedJob& logged : jobs) {
        const Model* named = options.modelChosen ? nullptr : findModel(logged.model);
        Model model = named != nullptr ? *named : options.server.model;
        model.powerOnCodeTable = options.powerOnCodeTable;
        FileJob job(workshop, model, ++number);
        runJob(job, logged.bytes, model);
    }
    if (jobs.empty()) {
        throw std::runtime_error(options.inputLog + ": no line COMANDOSENVIADOS");
    }
}

void run(const Options& options)
{
    namespace fs = std::filesystem;
    const std::string input = options.input.empty() ? options.inputLog : options.input;
    const bool named = input.empty() || options.name != Options().name;
    fs::create_directories(options.output);

    std::unique_ptr<OffscreenApplication> application;
    std::unique_ptr<FontGlyphs> glyphs;
    Workshop workshop;
    workshop.stem =
        (fs::path(options.output) / (named ? fs::path(options.name) : fs::path(input).stem()))
            .string();
    workshop.say = say;
    if (options.pictures) {
        application = std::make_unique<OffscreenApplication>();
        glyphs = std::make_unique<FontGlyphs>(options.fontFile);
        workshop.glyphs = glyphs.get();
    }
    for (const auto& [key, path] : options.graphicFiles) {
        workshop.graphics[key] = readGraphic(path);
    }
    if (!options.input.empty()) {
        drawFile(options, workshop);
    } else if (!options.inputLog.empty()) {
        drawLog(options, workshop);
    } else {
        serve(options, workshop);
    }
}

} // namespace

#if defined(__SANITIZE_ADDRESS__)
// Qt's off-screen plugin keeps its screen when the application ends.
extern "C" const char* __lsan_default_suppressions() // NOLINT(bugprone-reserved-identifier)
{
    return "leak:libqoffscreen\nleak:QWindowSystemInterface\nleak:QPlatformScreen\n";
}
#endif

int main(int argc, char** argv)
{
    try {
        const Options options = parseOptions(std::vector<std::string>(argv + 1, argv + argc));
        if (options.help) {
            std::cout << usage;
        } else {
            run(options);
        }
        return 0;
    } catch (const UsageError& error) {
        std::cerr << "q7_virtual_printer: " << error.message << " (see --help)\n";
    } catch (const std::exception& error) {
        std::cerr << "q7_virtual_printer: " << error.what() << '\n';
    }
    return 1;
}
