#include "options.h"

#include "code_table.h"

#include <functional>
#include <stdexcept>

namespace virtual_printer
{

const char* const usage = R"(Usage: q7_virtual_printer [options]
Plays a receipt printer: answers queries, and draws and writes down what it is sent.

Links
  --port N            TCP port to listen on; 0 (the default) takes any
  --listen ADDRESS    IPv4 address to listen on, 127.0.0.1 by default
  --no-tcp            no TCP port
  --serial            serve a pseudo-terminal as serial port (not on Windows)
  --serial-link PATH  the same, and make PATH a symbolic link to it
  --port-file FILE    write the TCP port number to FILE once it listens
  --jobs N            end after N connections
No link
  --input FILE        draw the printer bytes in FILE and end
  --input-log FILE    draw what a library log says was sent (its lines COMANDOSENVIADOS) and end
Printer
  --model NAME        VANTA (the default) or another model
  --state NAME        paper-out, near-end, cover-open, drawer-open or sensor; may be repeated
  --code-table N      code table in force after a reset: 0 (PC437, the default), 2 (PC850),
                      3 (PC860), 16 (Windows 1252) or 19 (PC858)
  --graphic KEY=FILE  store the PNG image FILE under the two characters KEY; may be repeated
Misbehaviour
  --silent            answer no query
  --late MS           answer that late
  --byte-gap MS       pause between the bytes of an answer
  --prompt N          give the first N answers of a connection as they should be
  --unasked MS        send unasked status bytes at that period
  --read-rate N       read N bytes a second
  --reset-after N     reset the connection after N bytes
  --close-after N     close the connection after N bytes
  --shut-after N      close its own side of the connection after N bytes
  --stall-after N     read no more from the connection after N bytes
  --garbage-after N   send 4096 arbitrary bytes after N bytes
  --babble-after N    send arbitrary bytes without end after N bytes
Output
  --output DIR        folder of the files, "." by default: NAME-J.bin has the bytes of connection J,
                      NAME-J.list its commands, NAME-J-R.png and NAME-J-R.txt its receipt R
  --name NAME         their name; "job", or that of the input file, by default
  --no-picture        no PNG files
On standard output: "port N" and "serial PATH" when they are ready, "wrote PATH" for each receipt's
files, "job J ended" for each connection.
)";

namespace
{

constexpr int many = 2'000'000'000;

int numberOf(const std::string& option, const std::string& text, int highest)
{
    try {
        std::size_t used = 0;
        const int value = std::stoi(text, &used);
        if (used == text.size() && value >= 0 && value <= highest) {
            return value;
        }
    } catch (const std::logic_error&) { // NOLINT(bugprone-empty-catch): reported below
    }
    throw UsageError{option + " takes a number from 0 to " + std::to_string(highest)};
}

/** One option: whether it takes a value, and what it does. */
struct Option {
    bool takesValue;
    std::function<void(const std::string& name, const std::string& value)> apply;
};

Option flag(bool& target, bool value = true)
{
    return {false, [&target, value](const auto&, const auto&) { target = value; }};
}

Option text(std::string& target)
{
    return {true, [&target](const auto&, const std::string& value) { target = value; }};
}

template <typename Number> Option number(Number& target, int highest = many)
{
    return {true, [&target, highest](const std::string& name, const std::string& value) {
                target = static_cast<Number>(numberOf(name, value, highest));
            }};
}

Option faultAfter(Behaviour& behaviour, Behaviour::Fault fault)
{
    return {true, [&behaviour, fault](const std::string& name, const std::string& value) {
                behaviour.fault = fault;
                behaviour.faultAfterBytes = static_cast<std::uint64_t>(numberOf(name, value, many));
            }};
}

} // namespace

Options parseOptions(const std::vector<std::string>& arguments)
{
    Options options;
    ServerSettings& server = options.server;
    Behaviour& behaviour = server.behaviour;
    const std::map<std::string, Option> known = {
        {"--help", flag(options.help)},
        {"--port", number(server.port, 65535)},
        {"--listen", text(server.address)},
        {"--no-tcp", flag(server.tcp, false)},
        {"--serial", flag(server.serial)},
        {"--serial-link",
         {true,
          [&server](const auto&, const std::string& value) {
              server.serial = true;
              server.serialLink = value;
          }}},
        {"--port-file", text(options.portFile)},
        {"--jobs", number(options.jobs)},
        {"--input", text(options.input)},
        {"--input-log", text(options.inputLog)},
        {"--model",
         {true,
          [&options](const auto&, const std::string& value) {
              const Model* model = findModel(value);
              if (model == nullptr) {
                  throw UsageError{"the models are " + modelNames()};
              }
              options.server.model = *model;
              options.modelChosen = true;
          }}},
        {"--state",
         {true,
          [&server](const auto&, const std::string& value) {
              if (!server.state.set(value)) {
                  throw UsageError{"unknown state " + value};
              }
          }}},
        {"--graphic",
         {true,
          [&options](const auto&, const std::string& value) {
              if (value.size() < 4 || value[2] != '=') {
                  throw UsageError{"--graphic takes two characters, = and a file name"};
              }
              options.graphicFiles[value.substr(0, 2)] = value.substr(3);
          }}},
        {"--code-table", number(options.powerOnCodeTable, 255)},
        {"--silent", flag(behaviour.silent)},
        {"--late", number(behaviour.lateMs)},
        {"--byte-gap", number(behaviour.byteGapMs)},
        {"--prompt", number(behaviour.promptReplies)},
        {"--unasked", number(behaviour.unaskedStatusMs)},
        {"--read-rate", number(behaviour.readBytesPerSecond)},
        {"--reset-after", faultAfter(behaviour, Behaviour::Fault::Reset)},
        {"--close-after", faultAfter(behaviour, Behaviour::Fault::Close)},
        {"--shut-after", faultAfter(behaviour, Behaviour::Fault::HalfClose)},
        {"--stall-after", faultAfter(behaviour, Behaviour::Fault::Stall)},
        {"--garbage-after", faultAfter(behaviour, Behaviour::Fault::Garbage)},
        {"--babble-after", faultAfter(behaviour, Behaviour::Fault::Babble)},
        {"--output", text(options.output)},
        {"--name", text(options.name)},
        {"--no-picture", flag(options.pictures, false)},
    };
    for (std::size_t at = 0; at < arguments.size(); ++at) {
        const std::string& name = arguments[at];
        const auto option = known.find(name);
        if (option == known.end()) {
            throw UsageError{"unknown option " + name};
        }
        std::string value;
        if (option->second.takesValue) {
            if (++at == arguments.size()) {
                throw UsageError{name + " needs a value"};
            }
            value = arguments[at];
        }
        option->second.apply(name, value);
    }
    if (!hasCodeTable(options.powerOnCodeTable)) {
        throw UsageError{"the code tables are 0, 2, 3, 16 and 19"};
    }
    server.model.powerOnCodeTable = options.powerOnCodeTable;
    return options;
}

} // namespace virtual_printer
