// A connection whose bytes were recorded, in a file or a log.
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

} // namespace virtual_printer
