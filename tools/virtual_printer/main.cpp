#include "command_log.h"
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
    Server server(options.server, [&](int number) {
        return std::make_unique<FileJob>(workshop, options.server.model, number);
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

void drawFile(const Options& options, const Workshop& workshop)
{
    std::ifstream file = openForReading(options.input);
    RecordedConnection connection(workshop, options.server.model, 1);
    char buffer[65536];
    do {
        file.read(buffer, sizeof buffer);
        connection.received(std::string_view(buffer, static_cast<std::size_t>(file.gcount())));
    } while (file);
    connection.end();
}

void drawLog(const Options& options, const Workshop& workshop)
{
    std::ifstream file = openForReading(options.inputLog);
    std::unique_ptr<RecordedConnection> connection;
    Model model = options.server.model;
    int number = 0;
    const auto end = [&] {
        if (connection) {
            connection->end();
            connection.reset();
        }
    };
    LogEvents events;
    events.opened = [&](const std::string& modelName) {
        end();
        const Model* named = options.modelChosen ? nullptr : findModel(modelName);
        model = named != nullptr ? *named : options.server.model;
        model.powerOnCodeTable = options.powerOnCodeTable;
    };
    events.sent = [&](std::string_view bytes) {
        if (!connection) {
            connection = std::make_unique<RecordedConnection>(workshop, model, ++number);
        }
        connection->received(bytes);
    };
    events.faulty = [&](std::uint64_t line) {
        std::cerr << options.inputLog << ':' << line << ": not hexadecimal to its end\n";
    };
    readCommandLog(file, events);
    end();
    if (number == 0) {
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
    workshop.say = say;
    if (options.pictures) {
        workshop.glyphs = &glyphs;
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
