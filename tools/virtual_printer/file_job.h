// One connection written to files: its bytes, its commands and its receipts.
#pragma once

#include "receipts.h"
#include "server.h"
#include "typesetter.h"

#include <fstream>

namespace virtual_printer
{

/** What a connection was, once it has ended. */
struct JobEnd {
    int number;
    int faults;               // commands that were not understood
    std::uint64_t firstFault; // where the first begins, in bytes from the connection's start
    bool kept;                // all bytes and commands could be written
};

/** What all jobs of a run share; outlives them. */
struct Workshop {
    std::string stem; // path of the files without "-J", UTF-8
    ReceiptLooks looks = {};
    Graphics graphics = {};
    /** Told of every file of a receipt once it is complete, and of the end of every job. */
    std::function<void(const std::string& path)> wrote = [](const auto&) {};
    std::function<void(const JobEnd& end)> ended = [](const auto&) {};
};

class FileJob : public Job, private ReceiptTaker
{
public:
    /** Throws std::system_error when a file cannot be opened. */
    FileJob(const Workshop& workshop, const Model& model, int number);

    void received(std::string_view bytes) override;
    void command(const Command& command) override;
    void ended() override;

private:
    void beginReceipt(int number) override;
    void receiptText(std::string_view piece) override;
    void receiptNote(std::string_view text) override;
    void receiptPicture(std::string png) override;
    void endReceipt() override;

    const Workshop& m_workshop;
    std::string m_stem;
    std::ofstream m_bytes;
    std::ofstream m_list;
    std::ofstream m_text;
    std::string m_receiptStem;
    std::vector<std::string> m_picturePaths; // of the receipt at hand
    Receipts m_receipts;
    Typesetter m_typesetter;
    std::uint64_t m_size = 0;
    JobEnd m_end;
};

} // namespace virtual_printer
