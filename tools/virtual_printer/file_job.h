// One connection written to files: its bytes, its commands and its receipts.
#pragma once

#include "receipt_files.h"
#include "server.h"
#include "typesetter.h"

namespace virtual_printer
{

/** What all jobs of a run share; outlives them. */
struct Workshop {
    std::string stem;         // path of the files without "-J"
    Glyphs* glyphs = nullptr; // null: no pictures
    Graphics graphics = {};
    std::function<void(const std::string& line)> say; // takes what happened, a line each
};

class FileJob : public Job
{
public:
    /** Throws std::system_error when a file cannot be opened. */
    FileJob(const Workshop& workshop, const Model& model, int number);

    void received(std::string_view bytes) override;
    void command(const Command& command) override;
    void ended() override;

private:
    const Workshop& m_workshop;
    int m_number;
    std::string m_stem;
    std::ofstream m_bytes;
    std::ofstream m_list;
    ReceiptFiles m_receipts;
    Typesetter m_typesetter;
    std::uint64_t m_size = 0;
    int m_faults = 0;
    std::uint64_t m_firstFault = 0;
};

} // namespace virtual_printer
