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
      m_number(number),
      m_stem(workshop.stem + "-" + std::to_string(number)),
      m_bytes(openForWriting(m_stem + ".bin")),
      m_list(openForWriting(m_stem + ".list")),
      m_receipts(m_stem, model.widthDots(), workshop.glyphs,
                 [&workshop](const std::string& path) { workshop.say("wrote " + path); }),
      m_typesetter(model, workshop.glyphs != nullptr ? *workshop.glyphs : blankGlyphs,
                   workshop.graphics, m_receipts,
                   [this](std::uint64_t offset, std::string_view remark) {
                       m_list << remarkLine(offset, remark) << '\n';
                   })
{
}

void FileJob::received(std::string_view bytes)
{
    m_bytes << bytes << std::flush;
    m_size += bytes.size();
}

void FileJob::command(const Command& command)
{
    m_list << listLine(command) << '\n';
    if (command.op == Op::Unknown || command.op == Op::Malformed || command.op == Op::Truncated) {
        m_firstFault = m_faults++ == 0 ? command.offset : m_firstFault;
    }
    m_typesetter.command(command);
}

void FileJob::ended()
{
    m_typesetter.finish(m_size);
    m_receipts.end();
    m_list.close();
    m_bytes.close();
    if (!m_list || !m_bytes) {
        m_workshop.say("could not write all of " + m_stem + ".bin and " + m_stem + ".list");
    }
    std::string line = "job " + std::to_string(m_number) + " ended";
    if (m_faults > 0) {
        line += ", not understood: " + std::to_string(m_faults) + ", the first at byte " +
                std::to_string(m_firstFault);
    }
    m_workshop.say(line);
}

} // namespace virtual_printer
