/** \file file_job.h
 *  One connection written to files: its bytes, its commands and its receipts.
 */
#ifndef Q7_VIRTUAL_PRINTER_FILE_JOB_H
#define Q7_VIRTUAL_PRINTER_FILE_JOB_H

#include "receipt_files.h"
#include "server.h"
#include "typesetter.h"

namespace virtual_printer
{

/** What all jobs of a run share; outlives them. */
struct Workshop {
    std::string stem;         /**< path of the files without "-J" */
    Glyphs* glyphs = nullptr; /**< null: no pictures */
    Graphics graphics = {};
    std::function<void(const std::string& line)> say; /**< takes what happened, a line each */
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
    const Workshop& workshop_;
    int number_;
    std::string stem_;
    std::ofstream bytes_;
    std::ofstream list_;
    ReceiptFiles receipts_;
    Typesetter typesetter_;
    std::uint64_t size_ = 0;
    int faults_ = 0;
    std::uint64_t firstFault_ = 0;
};

/** Runs complete bytes through a job, as if they had come over a connection. */
void runJob(Job& job, std::string_view bytes, const Model& model);

} // namespace virtual_printer

#endif
