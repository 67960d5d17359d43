#include "recorded_connection.h"

#include "command_log.h"

namespace virtual_printer
{

RecordedConnection::RecordedConnection(const Workshop& workshop, const Model& model, int number)
    : m_job(workshop, model, number),
      m_parser([this](const Command& command) { m_job.command(command); },
               model.tildeQueries ? CommandParser::TildeQueries::Yes
                                  : CommandParser::TildeQueries::No)
{
}

void RecordedConnection::received(std::string_view bytes)
{
    m_job.received(bytes);
    m_parser.feed(bytes);
}

void RecordedConnection::end()
{
    m_parser.finish();
    m_job.ended();
}

void drawBytes(std::istream& bytes, const Workshop& workshop, const Model& model)
{
    RecordedConnection connection(workshop, model, 1);
    char buffer[65536];
    do {
        bytes.read(buffer, sizeof buffer);
        connection.received(std::string_view(buffer, static_cast<std::size_t>(bytes.gcount())));
    } while (bytes);
    connection.end();
}

int drawLog(std::istream& log, const Workshop& workshop, const Model& model, bool onlyThatModel,
            const std::function<void(std::uint64_t line)>& faulty)
{
    std::unique_ptr<RecordedConnection> connection;
    Model current = model;
    int count = 0;
    const auto end = [&] {
        if (connection) {
            connection->end();
            connection.reset();
        }
    };
    LogEvents events;
    events.opened = [&](const std::string& modelName) {
        end();
        const Model* named = onlyThatModel ? nullptr : findModel(modelName);
        current = named != nullptr ? *named : model;
        current.powerOnCodeTable = model.powerOnCodeTable;
    };
    events.sent = [&](std::string_view bytes) {
        if (!connection) {
            connection = std::make_unique<RecordedConnection>(workshop, current, ++count);
        }
        connection->received(bytes);
    };
    events.faulty = faulty;
    readCommandLog(log, events);
    end();
    return count;
}

} // namespace virtual_printer
