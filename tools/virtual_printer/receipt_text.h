/** \file receipt_text.h
 *  A receipt as plain text, for a terminal.
 */
#ifndef Q7_VIRTUAL_PRINTER_RECEIPT_TEXT_H
#define Q7_VIRTUAL_PRINTER_RECEIPT_TEXT_H

#include "code_table.h"
#include "device.h"

namespace virtual_printer
{

/** Follows the commands that decide which characters stand on which line. */
class ReceiptText
{
public:
    explicit ReceiptText(const Model& model) : columnsFontA_(model.columnsFontA) {}

    void command(const Command& command);
    /** The lines printed so far, UTF-8. */
    [[nodiscard]] const std::string& lines() const { return lines_; }

private:
    void character(unsigned char byte);
    void endLine();
    void standAlone(const std::string& text);

    int columnsFontA_;
    std::string lines_;
    std::u16string line_;
    bool fullLineEnded_ = false;
    bool fontB_ = false;
    unsigned widthFactor_ = 1;
    unsigned alignment_ = 0;
    unsigned codeTable_ = kPowerOnCodeTable;
    std::string qrData_;
};

} // namespace virtual_printer

#endif
