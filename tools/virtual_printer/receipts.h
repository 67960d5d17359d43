// Paper that a cut or the end of the connection divides into receipts.
#pragma once

#include "paper.h"
#include "picture.h"

#include <optional>

namespace virtual_printer
{

/** Takes the receipts of one connection, one behind the other. */
class ReceiptTaker
{
public:
    virtual ~ReceiptTaker() = default;
    ReceiptTaker() = default;
    ReceiptTaker(const ReceiptTaker&) = delete;
    ReceiptTaker& operator=(const ReceiptTaker&) = delete;

    /** number: 1, 2, ... */
    virtual void beginReceipt(int number) = 0;
    /** The next piece of the receipt as UTF-8 text. */
    virtual void receiptText(std::string_view piece) = 0;
    /** Something that left no dots, at this place. */
    virtual void receiptNote(std::string_view text) = 0;
    /** The next part of its picture. */
    virtual void receiptPicture(std::string png) = 0;
    virtual void endReceipt() = 0;
};

/** How receipts are shown. */
struct ReceiptLooks {
    Glyphs* glyphs = nullptr; // null for texts without pictures; outlives the receipts
    Picture::Frame frame = Picture::Frame::WithNotes;
    Language language = Language::English;
};

class Receipts : public Paper
{
public:
    /** taker: must outlive this. */
    Receipts(int widthDots, const ReceiptLooks& looks, ReceiptTaker& taker);

    void print(const Bitmap& dots, int advanceDots, std::string_view text) override;
    void feed(int dots) override;
    void cut() override;
    void note(std::string_view text) override;
    /** The connection has ended. */
    void end();

    /** The picture that goes on at the moment; empty without one. */
    std::string preview() const { return m_picture ? m_picture->preview() : std::string(); }

private:
    void begin();
    void endReceipt(Picture::End how);

    int m_widthDots;
    ReceiptLooks m_looks;
    ReceiptTaker& m_taker;
    int m_number = 0;
    bool m_begun = false;
    std::optional<Picture> m_picture;
};

} // namespace virtual_printer
