#include "command_table.h"

namespace virtual_printer
{
namespace
{

constexpr unsigned char dle = 0x10;
constexpr unsigned char esc = 0x1B;
constexpr unsigned char fs = 0x1C;
constexpr unsigned char gs = 0x1D;

constexpr CommandSpec commands[] = {
    {0, 0x09, Op::Tab, Shape::Fixed, 0, "HT", "tab"},
    {0, 0x0A, Op::LineFeed, Shape::Fixed, 0, "LF", ""},
    {0, 0x0C, Op::FormFeed, Shape::Fixed, 0, "FF", "print page, standard mode"},
    {0, 0x0D, Op::CarriageReturn, Shape::Fixed, 0, "CR", "ignored"},
    {0, 0x18, Op::CancelPage, Shape::Fixed, 0, "CAN", "clear page"},
    {dle, 0x04, Op::StatusQuery, Shape::RealTimeStatus, 1, "DLE EOT", "status query"},
    {dle, 0x05, Op::NoEffect, Shape::Fixed, 1, "DLE ENQ", "recover"},
    {dle, 0x14, Op::NoEffect, Shape::RealTimeAction, 0, "DLE DC4", "real-time action"},
    {esc, 0x0C, Op::PrintPage, Shape::Fixed, 0, "ESC FF", "print page"},
    {esc, ' ', Op::CharacterSpacing, Shape::Fixed, 1, "ESC SP", "character spacing"},
    {esc, '!', Op::PrintMode, Shape::Fixed, 1, "ESC !", "print mode"},
    {esc, '$', Op::AbsolutePosition, Shape::Fixed, 2, "ESC $", "horizontal position"},
    {esc, '%', Op::NoEffect, Shape::Fixed, 1, "ESC %", "user-defined characters"},
    {esc, '(', Op::NoEffect, Shape::Function, 0, "ESC (", "function, not drawn"},
    {esc, '*', Op::NoEffect, Shape::ColumnImage, 0, "ESC *", "column image, not drawn"},
    {esc, '-', Op::Underline, Shape::Fixed, 1, "ESC -", "underline"},
    {esc, '2', Op::DefaultLineSpacing, Shape::Fixed, 0, "ESC 2", "default line spacing"},
    {esc, '3', Op::LineSpacing, Shape::Fixed, 1, "ESC 3", "line spacing"},
    {esc, '=', Op::NoEffect, Shape::Fixed, 1, "ESC =", "peripheral"},
    {esc, '?', Op::NoEffect, Shape::Fixed, 1, "ESC ?", "cancel user-defined character"},
    {esc, '@', Op::Reset, Shape::Fixed, 0, "ESC @", "reset"},
    {esc, 'D', Op::TabStops, Shape::ZeroEnded, 32, "ESC D", "tab stops"},
    {esc, 'E', Op::Emphasis, Shape::Fixed, 1, "ESC E", "emphasis"},
    {esc, 'G', Op::DoubleStrike, Shape::Fixed, 1, "ESC G", "double strike"},
    {esc, 'J', Op::FeedDots, Shape::Fixed, 1, "ESC J", "feed dots"},
    {esc, 'L', Op::PageMode, Shape::Fixed, 0, "ESC L", "page mode"},
    {esc, 'M', Op::Font, Shape::Fixed, 1, "ESC M", "font"},
    {esc, 'R', Op::NoEffect, Shape::Fixed, 1, "ESC R", "international characters"},
    {esc, 'S', Op::StandardMode, Shape::Fixed, 0, "ESC S", "standard mode"},
    {esc, 'T', Op::PageDirection, Shape::Fixed, 1, "ESC T", "page direction"},
    {esc, 'V', Op::NoEffect, Shape::Fixed, 1, "ESC V", "rotation, not drawn"},
    {esc, 'W', Op::PageArea, Shape::Fixed, 8, "ESC W", "page area"},
    {esc, '\\', Op::RelativePosition, Shape::Fixed, 2, "ESC \\", "move horizontally"},
    {esc, 'a', Op::Alignment, Shape::Fixed, 1, "ESC a", "alignment"},
    {esc, 'c', Op::NoEffect, Shape::Fixed, 2, "ESC c", "sensors and keys"},
    {esc, 'd', Op::FeedLines, Shape::Fixed, 1, "ESC d", "feed lines"},
    {esc, 'i', Op::Cut, Shape::Fixed, 0, "ESC i", "cut"},
    {esc, 'm', Op::Cut, Shape::Fixed, 0, "ESC m", "cut"},
    {esc, 'p', Op::Drawer, Shape::Fixed, 3, "ESC p", "drawer"},
    {esc, 'r', Op::NoEffect, Shape::Fixed, 1, "ESC r", "colour"},
    {esc, 't', Op::CodeTable, Shape::Fixed, 1, "ESC t", "code table"},
    {esc, '{', Op::NoEffect, Shape::Fixed, 1, "ESC {", "upside down, not drawn"},
    {fs, '!', Op::NoEffect, Shape::Fixed, 1, "FS !", "Kanji print mode"},
    {fs, '&', Op::NoEffect, Shape::Fixed, 0, "FS &", "Kanji mode"},
    {fs, '(', Op::NoEffect, Shape::Function, 0, "FS (", "function, not drawn"},
    {fs, '-', Op::NoEffect, Shape::Fixed, 1, "FS -", "Kanji underline"},
    {fs, '.', Op::NoEffect, Shape::Fixed, 0, "FS .", "no Kanji mode"},
    {fs, 'C', Op::NoEffect, Shape::Fixed, 1, "FS C", "Kanji code"},
    {fs, 'S', Op::NoEffect, Shape::Fixed, 2, "FS S", "Kanji spacing"},
    {fs, 'W', Op::NoEffect, Shape::Fixed, 1, "FS W", "Kanji size"},
    {fs, 'p', Op::NoEffect, Shape::Fixed, 2, "FS p", "stored image, not drawn"},
    {gs, '!', Op::CharacterSize, Shape::Fixed, 1, "GS !", "character size"},
    {gs, '$', Op::PageVerticalPosition, Shape::Fixed, 2, "GS $", "vertical position"},
    {gs, '(', Op::NoEffect, Shape::Function, 0, "GS (", "function, not drawn"},
    {gs, '*', Op::NoEffect, Shape::DownloadImage, 0, "GS *", "image definition, not drawn"},
    {gs, '/', Op::NoEffect, Shape::Fixed, 1, "GS /", "print defined image, not drawn"},
    {gs, '8', Op::NoEffect, Shape::LongFunction, 0, "GS 8", "long function, not drawn"},
    {gs, ':', Op::NoEffect, Shape::Fixed, 0, "GS :", "macro"},
    {gs, 'B', Op::Reverse, Shape::Fixed, 1, "GS B", "white on black"},
    {gs, 'H', Op::BarcodeTextPosition, Shape::Fixed, 1, "GS H", "barcode text position"},
    {gs, 'I', Op::IdentificationQuery, Shape::Fixed, 1, "GS I", "identification query"},
    {gs, 'L', Op::LeftMargin, Shape::Fixed, 2, "GS L", "left margin"},
    {gs, 'P', Op::NoEffect, Shape::Fixed, 2, "GS P", "motion units, not drawn"},
    {gs, 'T', Op::NoEffect, Shape::Fixed, 1, "GS T", "to the line's start"},
    {gs, 'V', Op::Cut, Shape::Cut, 1, "GS V", "cut"},
    {gs, 'W', Op::PrintWidth, Shape::Fixed, 2, "GS W", "print width"},
    {gs, '\\', Op::PageVerticalMove, Shape::Fixed, 2, "GS \\", "move vertically"},
    {gs, '^', Op::NoEffect, Shape::Fixed, 3, "GS ^", "macro"},
    {gs, 'a', Op::AutomaticStatus, Shape::Fixed, 1, "GS a", "automatic status"},
    {gs, 'b', Op::NoEffect, Shape::Fixed, 1, "GS b", "smoothing"},
    {gs, 'c', Op::NoEffect, Shape::Fixed, 0, "GS c", "counter"},
    {gs, 'f', Op::BarcodeTextFont, Shape::Fixed, 1, "GS f", "barcode text font"},
    {gs, 'h', Op::BarcodeHeight, Shape::Fixed, 1, "GS h", "barcode height"},
    {gs, 'k', Op::Barcode, Shape::Barcode, 1, "GS k", "barcode"},
    {gs, 'o', Op::QrAltSettings, Shape::Fixed, 4, "GS o", "QR settings (ORLA-K)"},
    {gs, 'r', Op::StatusQuery, Shape::Fixed, 1, "GS r", "status query"},
    {gs, 'v', Op::RasterImage, Shape::RasterImage, 0, "GS v 0", "raster image"},
    {gs, 'w', Op::BarcodeModuleWidth, Shape::Fixed, 1, "GS w", "barcode module width"},
    {gs, 'z', Op::NoEffect, Shape::Fixed, 3, "GS z", "on-line recovery"},
};

} // namespace

const std::array<FunctionSpec, 7> functions = {{
    {esc, 'A', Op::Buzzer, "\x61\x64", 5, "buzzer"},
    {gs, 'L', Op::StoredGraphic, "\x30\x45", 6, "print stored graphic"},
    {gs, 'k', Op::QrModel, "\x31\x41", 4, "QR model"},
    {gs, 'k', Op::QrModuleSize, "\x31\x43", 3, "QR module size"},
    {gs, 'k', Op::QrLevel, "\x31\x45", 3, "QR level"},
    {gs, 'k', Op::QrStore, "\x31\x50\x30", 0, "QR data"},
    {gs, 'k', Op::QrPrint, "\x31\x51\x30", 3, "print QR code"},
}};

bool leadsCommand(unsigned char byte)
{
    return byte == dle || byte == esc || byte == fs || byte == gs;
}

const CommandSpec* findCommand(unsigned char lead, unsigned char code)
{
    const auto row = [](unsigned char first) -> std::size_t {
        constexpr std::string_view leads("\x10\x1B\x1C\x1D");
        return leads.find(static_cast<char>(first)) + 1; // a lone control code is row 0
    };
    static const auto table = [&row] {
        std::array<std::array<const CommandSpec*, 256>, 5> rows{};
        for (const CommandSpec& spec : commands) {
            rows[row(spec.lead)][spec.code] = &spec;
        }
        return rows;
    }();
    return table[row(lead)][code];
}

CommandName nameOf(const Command& command)
{
    if (command.op == Op::Text || command.bytes.empty()) {
        return {};
    }
    if (command.op == Op::TildeIdentification) {
        return {std::string(tildeQuery), "identification query"};
    }
    const auto first = static_cast<unsigned char>(command.bytes[0]);
    const bool lead = leadsCommand(first);
    if (lead && command.bytes.size() < 2) {
        return {};
    }
    const CommandSpec* spec = lead
                                  ? findCommand(first, static_cast<unsigned char>(command.bytes[1]))
                                  : findCommand(0, first);
    if (spec == nullptr) {
        return {};
    }
    CommandName found{std::string(spec->name), spec->effect};
    if (spec->shape == Shape::Function && command.bytes.size() > 2) {
        found.name.append(" ").append(1, command.bytes[2]);
        for (const FunctionSpec& function : functions) {
            if (function.op == command.op) {
                found.effect = function.effect;
            }
        }
    } else if (command.op == Op::QrAltPrint) {
        found.effect = "print QR code (ORLA-K)";
    } else if (command.op == Op::QrBemaPrint) {
        found.effect = "print QR code (SORBE)";
    }
    return found;
}

} // namespace virtual_printer
