#include "command_table.h"

namespace virtual_printer
{
namespace
{

constexpr unsigned char dle = 0x10;
constexpr unsigned char esc = 0x1B;
constexpr unsigned char fs = 0x1C;
constexpr unsigned char gs = 0x1D;

// A row is a command, whatever its length.
// clang-format off
constexpr CommandSpec commands[] = {
    {0, 0x09, Op::Tab, Shape::Fixed, 0, "HT", {"tab", "tabulação"}},
    {0, 0x0A, Op::LineFeed, Shape::Fixed, 0, "LF", {}},
    {0, 0x0C, Op::FormFeed, Shape::Fixed, 0, "FF", {"print page, standard mode", "imprime a página, modo normal"}},
    {0, 0x0D, Op::CarriageReturn, Shape::Fixed, 0, "CR", {"ignored", "ignorado"}},
    {0, 0x18, Op::CancelPage, Shape::Fixed, 0, "CAN", {"clear page", "limpa a página"}},
    {dle, 0x04, Op::StatusQuery, Shape::RealTimeStatus, 1, "DLE EOT", {"status query", "consulta de estado"}},
    {dle, 0x05, Op::NoEffect, Shape::Fixed, 1, "DLE ENQ", {"recover", "recuperação"}},
    {dle, 0x14, Op::NoEffect, Shape::RealTimeAction, 0, "DLE DC4", {"real-time action", "ação imediata"}},
    {esc, 0x0C, Op::PrintPage, Shape::Fixed, 0, "ESC FF", {"print page", "imprime a página"}},
    {esc, ' ', Op::CharacterSpacing, Shape::Fixed, 1, "ESC SP", {"character spacing", "espaço entre caracteres"}},
    {esc, '!', Op::PrintMode, Shape::Fixed, 1, "ESC !", {"print mode", "modo de impressão"}},
    {esc, '$', Op::AbsolutePosition, Shape::Fixed, 2, "ESC $", {"horizontal position", "posição horizontal"}},
    {esc, '%', Op::NoEffect, Shape::Fixed, 1, "ESC %", {"user-defined characters", "caracteres do usuário"}},
    {esc, '(', Op::NoEffect, Shape::Function, 0, "ESC (", {"function, not drawn", "função, não desenhada"}},
    {esc, '*', Op::NoEffect, Shape::ColumnImage, 0, "ESC *", {"column image, not drawn", "imagem em colunas, não desenhada"}},
    {esc, '-', Op::Underline, Shape::Fixed, 1, "ESC -", {"underline", "sublinhado"}},
    {esc, '2', Op::DefaultLineSpacing, Shape::Fixed, 0, "ESC 2", {"default line spacing", "entrelinha padrão"}},
    {esc, '3', Op::LineSpacing, Shape::Fixed, 1, "ESC 3", {"line spacing", "entrelinha"}},
    {esc, '=', Op::NoEffect, Shape::Fixed, 1, "ESC =", {"peripheral", "periférico"}},
    {esc, '?', Op::NoEffect, Shape::Fixed, 1, "ESC ?", {"cancel user-defined character", "cancela caractere do usuário"}},
    {esc, '@', Op::Reset, Shape::Fixed, 0, "ESC @", {"reset", "inicialização"}},
    {esc, 'D', Op::TabStops, Shape::ZeroEnded, 32, "ESC D", {"tab stops", "paradas de tabulação"}},
    {esc, 'E', Op::Emphasis, Shape::Fixed, 1, "ESC E", {"emphasis", "negrito"}},
    {esc, 'G', Op::DoubleStrike, Shape::Fixed, 1, "ESC G", {"double strike", "batida dupla"}},
    {esc, 'J', Op::FeedDots, Shape::Fixed, 1, "ESC J", {"feed dots", "avança pontos"}},
    {esc, 'L', Op::PageMode, Shape::Fixed, 0, "ESC L", {"page mode", "modo página"}},
    {esc, 'M', Op::Font, Shape::Fixed, 1, "ESC M", {"font", "fonte"}},
    {esc, 'R', Op::NoEffect, Shape::Fixed, 1, "ESC R", {"international characters", "caracteres internacionais"}},
    {esc, 'S', Op::StandardMode, Shape::Fixed, 0, "ESC S", {"standard mode", "modo normal"}},
    {esc, 'T', Op::PageDirection, Shape::Fixed, 1, "ESC T", {"page direction", "direção na página"}},
    {esc, 'V', Op::NoEffect, Shape::Fixed, 1, "ESC V", {"rotation, not drawn", "rotação, não desenhada"}},
    {esc, 'W', Op::PageArea, Shape::Fixed, 8, "ESC W", {"page area", "área da página"}},
    {esc, '\\', Op::RelativePosition, Shape::Fixed, 2, "ESC \\", {"move horizontally", "desloca na horizontal"}},
    {esc, 'a', Op::Alignment, Shape::Fixed, 1, "ESC a", {"alignment", "alinhamento"}},
    {esc, 'c', Op::NoEffect, Shape::Fixed, 2, "ESC c", {"sensors and keys", "sensores e teclas"}},
    {esc, 'd', Op::FeedLines, Shape::Fixed, 1, "ESC d", {"feed lines", "avança linhas"}},
    {esc, 'i', Op::Cut, Shape::Fixed, 0, "ESC i", {"cut", "corte"}},
    {esc, 'm', Op::Cut, Shape::Fixed, 0, "ESC m", {"cut", "corte"}},
    {esc, 'p', Op::Drawer, Shape::Fixed, 3, "ESC p", {"drawer", "gaveta"}},
    {esc, 'r', Op::NoEffect, Shape::Fixed, 1, "ESC r", {"colour", "cor"}},
    {esc, 't', Op::CodeTable, Shape::Fixed, 1, "ESC t", {"code table", "tabela de caracteres"}},
    {esc, '{', Op::NoEffect, Shape::Fixed, 1, "ESC {", {"upside down, not drawn", "de cabeça para baixo, não desenhado"}},
    {fs, '!', Op::NoEffect, Shape::Fixed, 1, "FS !", {"Kanji print mode", "modo de impressão Kanji"}},
    {fs, '&', Op::NoEffect, Shape::Fixed, 0, "FS &", {"Kanji mode", "modo Kanji"}},
    {fs, '(', Op::NoEffect, Shape::Function, 0, "FS (", {"function, not drawn", "função, não desenhada"}},
    {fs, '-', Op::NoEffect, Shape::Fixed, 1, "FS -", {"Kanji underline", "sublinhado Kanji"}},
    {fs, '.', Op::NoEffect, Shape::Fixed, 0, "FS .", {"no Kanji mode", "sai do modo Kanji"}},
    {fs, 'C', Op::NoEffect, Shape::Fixed, 1, "FS C", {"Kanji code", "código Kanji"}},
    {fs, 'S', Op::NoEffect, Shape::Fixed, 2, "FS S", {"Kanji spacing", "espaço Kanji"}},
    {fs, 'W', Op::NoEffect, Shape::Fixed, 1, "FS W", {"Kanji size", "tamanho Kanji"}},
    {fs, 'p', Op::NoEffect, Shape::Fixed, 2, "FS p", {"stored image, not drawn", "imagem gravada, não desenhada"}},
    {gs, '!', Op::CharacterSize, Shape::Fixed, 1, "GS !", {"character size", "tamanho dos caracteres"}},
    {gs, '$', Op::PageVerticalPosition, Shape::Fixed, 2, "GS $", {"vertical position", "posição vertical"}},
    {gs, '(', Op::NoEffect, Shape::Function, 0, "GS (", {"function, not drawn", "função, não desenhada"}},
    {gs, '*', Op::NoEffect, Shape::DownloadImage, 0, "GS *", {"image definition, not drawn", "definição de imagem, não desenhada"}},
    {gs, '/', Op::NoEffect, Shape::Fixed, 1, "GS /", {"print defined image, not drawn", "imprime imagem definida, não desenhada"}},
    {gs, '8', Op::NoEffect, Shape::LongFunction, 0, "GS 8", {"long function, not drawn", "função longa, não desenhada"}},
    {gs, ':', Op::NoEffect, Shape::Fixed, 0, "GS :", {"macro", "macro"}},
    {gs, 'B', Op::Reverse, Shape::Fixed, 1, "GS B", {"white on black", "branco no preto"}},
    {gs, 'H', Op::BarcodeTextPosition, Shape::Fixed, 1, "GS H", {"barcode text position", "posição do texto do código de barras"}},
    {gs, 'I', Op::IdentificationQuery, Shape::Fixed, 1, "GS I", {"identification query", "consulta de identificação"}},
    {gs, 'L', Op::LeftMargin, Shape::Fixed, 2, "GS L", {"left margin", "margem esquerda"}},
    {gs, 'P', Op::NoEffect, Shape::Fixed, 2, "GS P", {"motion units, not drawn", "unidades de movimento, não desenhadas"}},
    {gs, 'T', Op::NoEffect, Shape::Fixed, 1, "GS T", {"to the line's start", "volta ao início da linha"}},
    {gs, 'V', Op::Cut, Shape::Cut, 1, "GS V", {"cut", "corte"}},
    {gs, 'W', Op::PrintWidth, Shape::Fixed, 2, "GS W", {"print width", "largura de impressão"}},
    {gs, '\\', Op::PageVerticalMove, Shape::Fixed, 2, "GS \\", {"move vertically", "desloca na vertical"}},
    {gs, '^', Op::NoEffect, Shape::Fixed, 3, "GS ^", {"macro", "macro"}},
    {gs, 'a', Op::AutomaticStatus, Shape::Fixed, 1, "GS a", {"automatic status", "estado automático"}},
    {gs, 'b', Op::NoEffect, Shape::Fixed, 1, "GS b", {"smoothing", "suavização"}},
    {gs, 'c', Op::NoEffect, Shape::Fixed, 0, "GS c", {"counter", "contador"}},
    {gs, 'f', Op::BarcodeTextFont, Shape::Fixed, 1, "GS f", {"barcode text font", "fonte do texto do código de barras"}},
    {gs, 'h', Op::BarcodeHeight, Shape::Fixed, 1, "GS h", {"barcode height", "altura do código de barras"}},
    {gs, 'k', Op::Barcode, Shape::Barcode, 1, "GS k", {"barcode", "código de barras"}},
    {gs, 'o', Op::QrAltSettings, Shape::Fixed, 4, "GS o", {"QR settings (ORLA-K)", "ajustes do QR Code (ORLA-K)"}},
    {gs, 'r', Op::StatusQuery, Shape::Fixed, 1, "GS r", {"status query", "consulta de estado"}},
    {gs, 'v', Op::RasterImage, Shape::RasterImage, 0, "GS v 0", {"raster image", "imagem"}},
    {gs, 'w', Op::BarcodeModuleWidth, Shape::Fixed, 1, "GS w", {"barcode module width", "largura do módulo do código de barras"}},
    {gs, 'z', Op::NoEffect, Shape::Fixed, 3, "GS z", {"on-line recovery", "recuperação em linha"}},
};
// clang-format on

} // namespace

const std::array<FunctionSpec, 7> functions = {{
    {esc, 'A', Op::Buzzer, "\x61\x64", 5, {"buzzer", "aviso sonoro"}},
    {gs, 'L', Op::StoredGraphic, "\x30\x45", 6, {"print stored graphic", "imprime imagem gravada"}},
    {gs, 'k', Op::QrModel, "\x31\x41", 4, {"QR model", "modelo do QR Code"}},
    {gs, 'k', Op::QrModuleSize, "\x31\x43", 3, {"QR module size", "tamanho do módulo do QR Code"}},
    {gs, 'k', Op::QrLevel, "\x31\x45", 3, {"QR level", "nível do QR Code"}},
    {gs, 'k', Op::QrStore, "\x31\x50\x30", 0, {"QR data", "dados do QR Code"}},
    {gs, 'k', Op::QrPrint, "\x31\x51\x30", 3, {"print QR code", "imprime QR Code"}},
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
        return {std::string(tildeQuery), {"identification query", "consulta de identificação"}};
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
        found.effect = {"print QR code (ORLA-K)", "imprime QR Code (ORLA-K)"};
    } else if (command.op == Op::QrBemaPrint) {
        found.effect = {"print QR code (SORBE)", "imprime QR Code (SORBE)"};
    }
    return found;
}

} // namespace virtual_printer
