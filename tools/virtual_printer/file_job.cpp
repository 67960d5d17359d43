#include "file_job.h"

#include "command_list.h"
#include "files.h"

namespace virtual_printer
{
namespace
{

class BlankGlyphs : public Glyphs
{
public:
    const Bitmap& glyph(char16_t, Font font) override
    {
        static const Bitmap cells[] = {Bitmap(12, 24), Bitmap(9, 17)};
        return cells[font == Font::A ? 0 : 1];
    }
};

BlankGlyphs blankGlyphs;

} // namespace

FileJob::FileJob(const Workshop& workshop, const Model& model, int number)
    : m_workshop(workshop),
      m_stem(workshop.stem + "-" + std::to_string(number)),
      m_bytes(openForWriting(m_stem + ".bin")),
      m_list(openForWriting(m_stem + ".list")),
      m_receipts(model.widthDots(), workshop.looks, *this),
      m_typesetter(
          model, workshop.looks.glyphs != nullptr ? *workshop.looks.glyphs : blankGlyphs,
          workshop.graphics, m_receipts,
          [this](std::uint64_t offset, std::string_view remark) {
              m_list << remarkLine(offset, remark) << '\n';
          },
          workshop.looks.language),
      m_end{number, 0, 0, true}
{
}

void FileJob::received(std::string_view bytes)
{
    m_bytes << bytes << std::flush;
    m_size += bytes.size();
}

void FileJob::command(const Command& command)
{
    m_list << listLine(command, m_workshop.looks.language) << '\n';
    if (command.op == Op::Unknown || command.op == Op::Malformed || command.op == Op::Truncated) {
        m_end.firstFault = m_end.faults++ == 0 ? command.offset : m_end.firstFault;
    }
    m_typesetter.command(command);
}

void FileJob::ended()
{
    m_typesetter.finish(m_size);
    m_receipts.end();
    m_list.close();
    m_bytes.close();
    m_end.kept = m_list && m_bytes;
    m_workshop.ended(m_end);
}

void FileJob::beginReceipt(int number)
{
    m_receiptStem = m_stem + "-" + std::to_string(number);
    m_text = openForWriting(m_receiptStem + ".txt");
    m_picturePaths.clear();
}

void FileJob::receiptText(std::string_view piece)
{
    m_text << piece;
}

void FileJob::receiptNote(std::string_view text)
{
    m_text << "[" << text << "]\n";
}

void FileJob::receiptPicture(std::string png)
{
    const std::size_t part = m_picturePaths.size() + 1;
    m_picturePaths.push_back(m_receiptStem + (part == 1 ? "" : "-" + std::to_string(part)) +
                             ".png");
    std::ofstream file = openForWriting(m_picturePaths.back());
    file << png;
    closeWhole(file, m_picturePaths.back());
}

void FileJob::endReceipt()
{
    closeWhole(m_text, m_receiptStem + ".txt");
    m_workshop.wrote(m_receiptStem + ".txt");
    for (const std::string& path : m_picturePaths) {
        m_workshop.wrote(path);
    }
}

} // namespace virtual_printer
