// One connection's receipts put on the shelf as they print.
#pragma once

#include "receipt_shelf.h"

#include "receipts.h"
#include "server.h"
#include "typesetter.h"

namespace printer_page
{

class ShelfJob : public virtual_printer::Job, private virtual_printer::ReceiptTaker
{
public:
    /** Shelf, glyphs and graphics must outlive the job. */
    ShelfJob(ReceiptShelf& shelf, const virtual_printer::Model& model,
             virtual_printer::Glyphs& glyphs, const virtual_printer::Graphics& graphics);

    void received(std::string_view bytes) override { m_size += bytes.size(); }
    void command(const virtual_printer::Command& command) override;
    void show() override;
    void ended() override;

private:
    void beginReceipt(int number) override;
    void receiptText(std::string_view piece) override;
    void receiptNote(std::string_view text) override;
    void receiptPicture(std::string png) override;
    void endReceipt() override;

    void append(std::string& to, std::string_view piece, std::size_t most);
    void remark(std::uint64_t offset, std::string_view remark);
    static void addTo(std::vector<std::string>& notes, std::string_view note);

    ReceiptShelf& m_shelf;
    std::string m_model;
    Receipt m_receipt; // what is at hand; of nobody while its id is 0
    bool m_changed = false;
    bool m_finished = false;
    std::size_t m_pictureBytes = 0;
    std::uint64_t m_size = 0;
    virtual_printer::Receipts m_receipts;
    virtual_printer::Typesetter m_typesetter;
};

} // namespace printer_page
