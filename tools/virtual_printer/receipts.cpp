#include "receipts.h"

#include "phrases.h"

namespace virtual_printer
{

Receipts::Receipts(int widthDots, const ReceiptLooks& looks, ReceiptTaker& taker)
    : m_widthDots(widthDots), m_looks(looks), m_taker(taker)
{
}

void Receipts::begin()
{
    if (m_begun) {
        return;
    }
    m_begun = true;
    m_taker.beginReceipt(++m_number);
    if (m_looks.glyphs != nullptr) {
        m_picture.emplace(m_widthDots, *m_looks.glyphs, m_looks.frame, m_looks.language,
                          [this](std::string png) { m_taker.receiptPicture(std::move(png)); });
    }
}

void Receipts::print(const Bitmap& dots, int advanceDots, std::string_view text)
{
    begin();
    m_taker.receiptText(text);
    m_taker.receiptText("\n");
    if (m_picture) {
        m_picture->print(dots, advanceDots);
    }
}

void Receipts::feed(int dots)
{
    begin();
    if (m_picture) {
        m_picture->feed(dots);
    }
}

void Receipts::note(std::string_view text)
{
    begin();
    m_taker.receiptNote(text);
    if (m_picture) {
        m_picture->note(text);
    }
}

void Receipts::cut()
{
    if (m_begun) { // two cuts in a row leave no receipt between them
        const std::string dashes = "- - - - - - - - - -";
        m_taker.receiptText(dashes + " " + std::string(phrases::cutCommand.in(m_looks.language)) +
                            " " + dashes + "\n");
        endReceipt(Picture::End::Cut);
    }
}

void Receipts::end()
{
    if (m_begun) {
        endReceipt(Picture::End::Connection);
    }
}

void Receipts::endReceipt(Picture::End how)
{
    m_begun = false;
    if (m_picture) {
        m_picture->end(how);
        m_picture.reset();
    }
    m_taker.endReceipt();
}

} // namespace virtual_printer
