#include "recorded_connection.h"

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

} // namespace virtual_printer
