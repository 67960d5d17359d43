#include "file_job.h"

#include "command_list.h"
#include "command_parser.h"

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
    : workshop_(workshop),
      number_(number),
      stem_(workshop.stem + "-" + std::to_string(number)),
      bytes_(openForWriting(stem_ + ".bin")),
      list_(openForWriting(stem_ + ".list")),
      receipts_(stem_, model.widthDots(), workshop.glyphs,
                [&workshop](const std::string& path) { workshop.say("wrote " + path); }),
      typesetter_(model, workshop.glyphs != nullptr ? *workshop.glyphs : blankGlyphs,
                  workshop.graphics, receipts_,
                  [this](std::uint64_t offset, std::string_view remark) {
                      list_ << remarkLine(offset, remark) << '\n';
                  })
{
}

void FileJob::received(std::string_view bytes)
{
    bytes_ << bytes << std::flush;
    size_ += bytes.size();
}

void FileJob::command(const Command& command)
{
    list_ << listLine(command) << '\n';
    if (command.op == Op::Unknown || command.op == Op::Malformed || command.op == Op::Truncated) {
        firstFault_ = faults_++ == 0 ? command.offset : firstFault_;
    }
    typesetter_.command(command);
}

void FileJob::ended()
{
    typesetter_.finish(size_);
    receipts_.end();
    list_.close();
    std::string line = "job " + std::to_string(number_) + " ended";
    if (faults_ > 0) {
        line += ", not understood: " + std::to_string(faults_) + ", the first at byte " +
                std::to_string(firstFault_);
    }
    workshop_.say(line);
}

void runJob(Job& job, std::string_view bytes, const Model& model)
{
    CommandParser parser([&job](const Command& command) { job.command(command); },
                         model.tildeQueries ? CommandParser::TildeQueries::Yes
                                            : CommandParser::TildeQueries::No);
    job.received(bytes);
    parser.feed(bytes);
    parser.finish();
    job.ended();
}

} // namespace virtual_printer
