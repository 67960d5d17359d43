// Connections whose bytes were recorded, in a file or a log.
#pragma once

#include "command_parser.h"
#include "file_job.h"

namespace virtual_printer
{

/** Writes the files that the connection would have given had it come over a link. */
class RecordedConnection
{
public:
    /** number: of the connection in its recording, from 1. Throws std::system_error when a file
     *  cannot be opened. */
    RecordedConnection(const Workshop& workshop, const Model& model, int number);

    /** The next bytes, in pieces of any size. */
    void received(std::string_view bytes);
    void end();

private:
    FileJob m_job;
    CommandParser m_parser;
};

/** Draws a file of printer bytes, as connection 1. Throws std::exception's kin when a file could
 *  not be written. */
void drawBytes(std::istream& bytes, const Workshop& workshop, const Model& model);

/** Draws what a library log says was sent, a connection for each opening.
 *  model: for connections of which the log does not tell the model, or tells one that is not known.
 *  onlyThatModel: for all of them.
 *  faulty: told the number, from 1, of each line whose bytes are not hexadecimal to their end.
 *  Returns the count of connections. Throws as drawBytes does. */
int drawLog(std::istream& log, const Workshop& workshop, const Model& model, bool onlyThatModel,
            const std::function<void(std::uint64_t line)>& faulty);

} // namespace virtual_printer
