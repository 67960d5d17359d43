#include "receipt_text.h"

namespace virtual_printer
{

void ReceiptText::command(const Command& command)
{
    switch (command.op) {
    case Op::Text:
        for (const char c : command.bytes) {
            character(static_cast<unsigned char>(c));
        }
        break;
    case Op::LineFeed:
        if (!fullLineEnded_) {
            endLine();
        }
        fullLineEnded_ = false;
        break;
    case Op::Reset: // throws away a line that is not yet printed
        line_.clear();
        fullLineEnded_ = fontB_ = false;
        widthFactor_ = 1;
        alignment_ = 0;
        codeTable_ = kPowerOnCodeTable;
        break;
    case Op::PrintMode:
        fontB_ = (command.arg(0) & 1U) != 0;
        widthFactor_ = (command.arg(0) & 0x20U) != 0 ? 2 : 1;
        break;
    case Op::Font:
        fontB_ = (command.arg(0) & 1U) != 0;
        break;
    case Op::CharacterSize:
        widthFactor_ = (command.arg(0) >> 4U) % 8 + 1;
        break;
    case Op::Alignment:
        alignment_ = command.arg(0) % 48 <= 2 ? command.arg(0) % 48 : alignment_;
        break;
    case Op::CodeTable:
        codeTable_ = command.arg(0);
        break;
    case Op::QrStore:
        qrData_ = command.data();
        break;
    case Op::QrPrint:
        standAlone("[QR code " + quoted(qrData_) + "]");
        break;
    case Op::QrAltPrint:
    case Op::QrBemaPrint:
        standAlone("[QR code " + quoted(command.data()) + "]");
        break;
    case Op::Barcode:
        standAlone("[barcode " + quoted(command.data()) + "]");
        break;
    case Op::StoredGraphic:
        standAlone("[graphic " + quoted(command.data().substr(0, 2)) + "]");
        break;
    case Op::FormFeed:
    case Op::PrintPage:
    case Op::PageArea:
        if (!line_.empty()) {
            endLine();
        }
        break;
    case Op::Cut:
        standAlone("- - - - - - - - cut - - - - - - - -");
        break;
    case Op::Drawer:
        standAlone("[drawer]");
        break;
    case Op::Buzzer:
        standAlone("[buzzer]");
        break;
    default:
        break;
    }
}

void ReceiptText::character(unsigned char byte)
{
    fullLineEnded_ = false;
    line_ += characterOf(codeTable_, byte);
    const int columns = fontB_ ? columnsFontA_ * 4 / 3 : columnsFontA_;
    if (static_cast<int>((line_.size() + 1) * widthFactor_) > columns) {
        endLine();
        fullLineEnded_ = true;
    }
}

void ReceiptText::endLine()
{
    const int columns =
        (fontB_ ? columnsFontA_ * 4 / 3 : columnsFontA_) / static_cast<int>(widthFactor_);
    const int space = columns - static_cast<int>(line_.size());
    const int left = alignment_ == 2 ? space : alignment_ == 1 ? space / 2 : 0;
    if (!line_.empty() && left > 0) {
        lines_.append(static_cast<std::size_t>(left), ' ');
    }
    for (const char16_t character : line_) {
        appendUtf8(lines_, character);
    }
    lines_ += '\n';
    line_.clear();
}

void ReceiptText::standAlone(const std::string& text)
{
    if (!line_.empty()) {
        endLine();
    }
    lines_ += text + "\n";
    fullLineEnded_ = false;
}

} // namespace virtual_printer
