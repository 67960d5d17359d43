#include "shelf_job.h"

#include "command_list.h"

#include <algorithm>

namespace printer_page
{
namespace
{

using namespace virtual_printer;

// What is kept of one receipt; a till's receipt takes a hundredth of it.
constexpr std::size_t mostText = std::size_t{1} << 20U;
constexpr std::size_t mostCommands = 2 * mostText;
constexpr std::size_t mostBytes = 2 * mostText;
constexpr std::size_t mostPictures = 8 * mostText;
constexpr std::size_t mostNotes = 100;
// Of what comes between receipts and belongs to the next.
constexpr std::size_t mostBetween = mostText / 16;

bool asks(Op op)
{
    return op == Op::StatusQuery || op == Op::IdentificationQuery ||
           op == Op::TildeIdentification || op == Op::AutomaticStatus;
}

} // namespace

ShelfJob::ShelfJob(ReceiptShelf& shelf, const Model& model, Glyphs& glyphs,
                   const Graphics& graphics)
    : m_shelf(shelf),
      m_model(model.name),
      m_receipts(model.widthDots(), {&glyphs, Picture::Frame::PaperAlone, Language::Portuguese},
                 *this),
      m_typesetter(
          model, glyphs, graphics, m_receipts,
          [this](std::uint64_t offset, std::string_view text) { remark(offset, text); },
          Language::Portuguese)
{
}

void ShelfJob::command(const Command& command)
{
    if (m_receipt.id == 0 &&
        (asks(command.op) || m_receipt.commands.size() + m_receipt.bytes.size() > mostBetween)) {
        // A till that asks for the status all day prints nothing by it.
        m_receipt = {};
        if (asks(command.op)) {
            return;
        }
    }
    append(m_receipt.commands, listLine(command, Language::Portuguese) + '\n', mostCommands);
    append(m_receipt.bytes, command.bytes, mostBytes);
    if (command.op == Op::Unknown || command.op == Op::Malformed || command.op == Op::Truncated) {
        addTo(m_receipt.notes, "não entendido, no byte " + std::to_string(command.offset) + ": " +
                                   nameWithArguments(command, Language::Portuguese));
    }
    m_typesetter.command(command);
    m_changed = true;
    if (m_finished) { // by this command, whose bytes are the receipt's last
        m_finished = false;
        m_shelf.keep(std::move(m_receipt));
        m_receipt = {};
        m_pictureBytes = 0;
        m_changed = false;
    }
}

void ShelfJob::show()
{
    if (m_receipt.id != 0 && m_changed) {
        m_changed = false;
        Receipt now = m_receipt;
        if (!m_receipt.shortened) {
            now.pictures.push_back(m_receipts.preview());
        }
        m_shelf.keep(std::move(now));
    }
}

void ShelfJob::ended()
{
    m_typesetter.finish(m_size);
    m_receipts.end();
    if (m_finished) {
        m_shelf.keep(std::move(m_receipt));
    }
}

void ShelfJob::beginReceipt(int /*number*/)
{
    m_receipt.id = m_shelf.takeNumber();
    m_receipt.model = m_model;
    m_receipt.begun = std::chrono::system_clock::now();
}

void ShelfJob::receiptText(std::string_view piece)
{
    append(m_receipt.text, piece, mostText);
}

void ShelfJob::receiptNote(std::string_view text)
{
    append(m_receipt.text, "[" + std::string(text) + "]\n", mostText);
    addTo(m_receipt.notes, text);
    // The typesetter remarks on what it notes.
    const auto endsWith = [](std::string_view whole, std::string_view end) {
        return whole.size() >= end.size() && whole.substr(whole.size() - end.size()) == end;
    };
    if (!m_receipt.remarks.empty() && endsWith(m_receipt.remarks.back(), text)) {
        m_receipt.remarks.pop_back();
    }
}

void ShelfJob::receiptPicture(std::string png)
{
    m_pictureBytes += png.size();
    if (m_pictureBytes <= mostPictures) {
        m_receipt.pictures.push_back(std::move(png));
    } else {
        m_receipt.shortened = true;
    }
}

void ShelfJob::endReceipt()
{
    m_receipt.finished = true;
    m_finished = true;
}

void ShelfJob::append(std::string& to, std::string_view piece, std::size_t most)
{
    const std::size_t room = most - std::min(most, to.size());
    m_receipt.shortened = m_receipt.shortened || piece.size() > room;
    to.append(piece.substr(0, room));
}

void ShelfJob::remark(std::uint64_t offset, std::string_view remark)
{
    append(m_receipt.commands, remarkLine(offset, remark) + '\n', mostCommands);
    addTo(m_receipt.remarks, "no byte " + std::to_string(offset) + ": " + std::string(remark));
}

void ShelfJob::addTo(std::vector<std::string>& notes, std::string_view note)
{
    if (notes.size() < mostNotes) {
        notes.emplace_back(note);
    }
}

} // namespace printer_page
