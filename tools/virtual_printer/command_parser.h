// Bytes in, commands out. Knows lengths and ranges, nothing of paper, links or files.
#pragma once

#include "command.h"

#include <functional>
#include <vector>

namespace virtual_printer
{

/** Cuts a byte stream, handed over in pieces of any size, into commands. The commands do not depend
 *  on where the pieces end. Whatever the bytes are, every one of them ends up in exactly one
 *  command, and what is held back is bounded (longestCommand). */
class CommandParser
{
public:
    using Receiver = std::function<void(const Command&)>;

    /** Commands announcing more bytes than this are malformed: what follows them is printed. */
    static constexpr std::size_t longestCommand = 1048576;
    /** A run of text is handed on at the latest when it is this long. */
    static constexpr std::size_t longestText = 4096;

    enum class TildeQueries : bool { No, Yes };

    /** tilde: whether ~HI is a query (TESMO) or three characters. */
    explicit CommandParser(Receiver receiver, TildeQueries tilde = TildeQueries::No);

    void feed(std::string_view bytes);
    /** The stream has ended: hands on the last text, and what is left as a truncated command. */
    void finish();

private:
    void takeCommands(bool ended);

    Receiver m_receiver;
    TildeQueries m_tilde;
    std::string m_pending;
    std::uint64_t m_offset = 0;
};

/** All commands of a complete stream. */
std::vector<Command> parseAll(std::string_view bytes);

} // namespace virtual_printer
