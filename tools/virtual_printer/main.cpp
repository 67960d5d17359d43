#include "command_list.h"
#include "command_parser.h"
#include "receipt_text.h"
#include "server.h"

#include <csignal>
#include <cstdio>
#include <cstring>
#include <exception>
#include <filesystem>
#include <fstream>
#include <iostream>

namespace
{

using namespace virtual_printer;

constexpr char kUsage[] = R"(Usage: q7_virtual_printer [options]
Plays a receipt printer on a TCP port and writes down what it is sent.

Links
  --port N            TCP port to listen on; 0 (the default) takes any
  --listen ADDRESS    IPv4 address to listen on, 127.0.0.1 by default
  --no-tcp            no TCP port
  --serial            serve a pseudo-terminal as serial port
  --serial-link PATH  the same, and make PATH a symbolic link to it
  --port-file FILE    write the TCP port number to FILE once it listens
  --jobs N            end after N connections
Printer
  --model NAME        VANTA (the default) or another model
  --state NAME        paper-out, near-end, cover-open, drawer-open or sensor; may be repeated
Misbehaviour
  --silent            answer no query
  --late MS           answer that late
  --byte-gap MS       pause between the bytes of an answer
  --prompt N          give the first N answers of a connection as they should be
  --unasked MS        send unasked status bytes at that period
  --read-rate N       read N bytes a second
  --reset-after N     reset the connection after N bytes
  --close-after N     close the connection after N bytes
Output
  --output DIR        folder of the files, "." by default: NAME-J.bin has the bytes of connection J,
                      NAME-J.list its commands, NAME-J.txt the receipts as text
  --name NAME         their name, "job" by default
On standard output: "port N" and "serial PATH" when they are ready, "job J ended" for each.
)";

struct Options {
    ServerSettings server;
    std::string portFile;
    std::string output = ".";
    std::string name = "job";
    int jobs = 0;
};

/** A mistake in the command line. */
struct UsageError {
    std::string message;
};

int numberOf(const std::string& option, const std::string& text, int highest)
{
    try {
        std::size_t used = 0;
        const int value = std::stoi(text, &used);
        if (used == text.size() && value >= 0 && value <= highest) {
            return value;
        }
    } catch (const std::exception&) { // NOLINT(bugprone-empty-catch): reported below
    }
    throw UsageError{option + " takes a number from 0 to " + std::to_string(highest)};
}

Options parseOptions(const std::vector<std::string>& arguments)
{
    constexpr int many = 2'000'000'000;
    Options options;
    ServerSettings& server = options.server;
    Behaviour& behaviour = server.behaviour;
    for (std::size_t at = 0; at < arguments.size(); ++at) {
        const std::string& option = arguments[at];
        const auto value = [&]() -> const std::string& {
            if (at + 1 == arguments.size()) {
                throw UsageError{option + " needs a value"};
            }
            return arguments[++at];
        };
        const auto number = [&](int highest) { return numberOf(option, value(), highest); };
        const auto exit = [&](Behaviour::Exit how) {
            behaviour.exit = how;
            behaviour.exitAfterBytes = static_cast<std::uint64_t>(number(many));
        };
        if (option == "--port") {
            server.port = static_cast<std::uint16_t>(number(65535));
        } else if (option == "--listen") {
            server.address = value();
        } else if (option == "--no-tcp") {
            server.tcp = false;
        } else if (option == "--serial") {
            server.serial = true;
        } else if (option == "--serial-link") {
            server.serial = true;
            server.serialLink = value();
        } else if (option == "--port-file") {
            options.portFile = value();
        } else if (option == "--jobs") {
            options.jobs = number(many);
        } else if (option == "--model") {
            const Model* model = findModel(value());
            if (model == nullptr) {
                throw UsageError{"the models are " + modelNames()};
            }
            server.model = *model;
        } else if (option == "--state") {
            if (!server.state.set(value())) {
                throw UsageError{"unknown state " + arguments[at]};
            }
        } else if (option == "--silent") {
            behaviour.silent = true;
        } else if (option == "--late") {
            behaviour.lateMs = number(many);
        } else if (option == "--byte-gap") {
            behaviour.byteGapMs = number(many);
        } else if (option == "--prompt") {
            behaviour.promptReplies = number(many);
        } else if (option == "--unasked") {
            behaviour.unaskedStatusMs = number(many);
        } else if (option == "--read-rate") {
            behaviour.readBytesPerSecond = number(many);
        } else if (option == "--reset-after") {
            exit(Behaviour::Exit::Reset);
        } else if (option == "--close-after") {
            exit(Behaviour::Exit::Close);
        } else if (option == "--output") {
            options.output = value();
        } else if (option == "--name") {
            options.name = value();
        } else {
            throw UsageError{"unknown option " + option};
        }
    }
    return options;
}

void say(const std::string& line)
{
    std::cout << line << std::endl;
}

std::ofstream openFile(const std::filesystem::path& path)
{
    std::ofstream file(path, std::ios::binary);
    if (!file) {
        throw std::system_error(errno, std::generic_category(), path);
    }
    return file;
}

/** Writes the files of one connection. */
class FileJob : public Job
{
public:
    FileJob(const Options& options, int number)
        : number_(number),
          stem_((std::filesystem::path(options.output) / options.name).string() + "-" +
                std::to_string(number)),
          bytes_(openFile(stem_ + ".bin")),
          list_(openFile(stem_ + ".list")),
          text_(options.server.model)
    {
    }

    void received(std::string_view bytes) override { bytes_ << bytes << std::flush; }
    void command(const Command& command) override
    {
        list_ << listLine(command) << '\n';
        text_.command(command);
    }
    void ended() override
    {
        list_.flush();
        openFile(stem_ + ".txt") << text_.lines();
        say("job " + std::to_string(number_) + " ended");
    }

private:
    int number_;
    std::string stem_;
    std::ofstream bytes_;
    std::ofstream list_;
    ReceiptText text_;
};

Server* runningServer = nullptr;

void onSignal(int)
{
    runningServer->stop();
}

void serve(const Options& options)
{
    std::filesystem::create_directories(options.output);
    Server server(options.server,
                  [&options](int number) { return std::make_unique<FileJob>(options, number); });
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
        openFile(partial) << server.port() << '\n';
        std::filesystem::rename(partial, options.portFile);
    }
    server.run(options.jobs);
}

} // namespace

int main(int argc, char** argv)
{
    const std::vector<std::string> arguments(argv + 1, argv + argc);
    if (arguments == std::vector<std::string>{"--help"}) {
        std::cout << kUsage;
        return 0;
    }
    try {
        serve(parseOptions(arguments));
        return 0;
    } catch (const UsageError& error) {
        std::cerr << "q7_virtual_printer: " << error.message << " (see --help)\n";
    } catch (const std::exception& error) {
        std::cerr << "q7_virtual_printer: " << error.what() << '\n';
    }
    return 1;
}
