#include "files.h"
#include "options.h"
#include "png_image.h"
#include "recorded_connection.h"
#include "table_glyphs.h"

#include <filesystem>
#include <iostream>

namespace
{

using namespace virtual_printer;

void say(const std::string& line)
{
    std::cout << line << std::endl;
}

void serve(const Options& options, const Workshop& workshop)
{
    Server server(options.server, [&](int number, const Model& model) {
        return std::make_unique<FileJob>(workshop, model, number);
    });
    server.stopOnSignals();
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

void sayEnd(const JobEnd& end)
{
    if (!end.kept) {
        say("could not write all bytes and commands of job " + std::to_string(end.number));
    }
    say("job " + std::to_string(end.number) + " ended" +
        (end.faults == 0 ? ""
                         : ", not understood: " + std::to_string(end.faults) +
                               ", the first at byte " + std::to_string(end.firstFault)));
}

void drawLogFile(const Options& options, const Workshop& workshop)
{
    std::ifstream file = openForReading(options.inputLog);
    const auto faulty = [&options](std::uint64_t line) {
        std::cerr << options.inputLog << ':' << line << ": not hexadecimal to its end\n";
    };
    if (drawLog(file, workshop, options.server.model, options.modelChosen, faulty) == 0) {
        throw std::runtime_error(options.inputLog + ": no line COMANDOSENVIADOS");
    }
}

void run(const Options& options)
{
    namespace fs = std::filesystem;
    const std::string input = options.input.empty() ? options.inputLog : options.input;
    const bool named = input.empty() || options.name != Options().name;
    fs::create_directories(options.output);

    TableGlyphs glyphs;
    Workshop workshop;
    workshop.stem =
        (fs::path(options.output) / (named ? fs::path(options.name) : fs::path(input).stem()))
            .string();
    workshop.wrote = [](const std::string& path) { say("wrote " + path); };
    workshop.ended = sayEnd;
    if (options.pictures) {
        workshop.looks.glyphs = &glyphs;
    }
    for (const auto& [key, path] : options.graphicFiles) {
        workshop.graphics[key] = readGraphic(path);
    }
    if (!options.input.empty()) {
        std::ifstream file = openForReading(options.input);
        drawBytes(file, workshop, options.server.model);
    } else if (!options.inputLog.empty()) {
        drawLogFile(options, workshop);
    } else {
        serve(options, workshop);
    }
}

} // namespace

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
