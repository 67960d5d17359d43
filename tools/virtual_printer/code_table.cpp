#include "code_table.h"

namespace virtual_printer
{
namespace
{

// The upper halves, 0x80 to 0xFF.
constexpr char16_t pc437[] =
    u"ÇüéâäàåçêëèïîìÄÅÉæÆôöòûùÿÖÜ¢£¥₧ƒáíóúñÑªº¿⌐¬½¼¡«»░▒▓│┤╡╢╖╕╣║╗╝╜╛┐"
    u"└┴┬├─┼╞╟╚╔╩╦╠═╬╧╨╤╥╙╘╒╓╫╪┘┌█▄▌▐▀αßΓπΣσµτΦΘΩδ∞φε∩≡±≥≤⌠⌡÷≈°∙·√ⁿ²■\u00A0";
constexpr char16_t pc850[] =
    u"ÇüéâäàåçêëèïîìÄÅÉæÆôöòûùÿÖÜø£Ø×ƒáíóúñÑªº¿®¬½¼¡«»░▒▓│┤ÁÂÀ©╣║╗╝¢¥┐"
    u"└┴┬├─┼ãÃ╚╔╩╦╠═╬¤ðÐÊËÈıÍÎÏ┘┌█▄¦Ì▀ÓßÔÒõÕµþÞÚÛÙýÝ¯´\u00AD±‗¾¶§÷¸°¨·¹³²■\u00A0";
constexpr char16_t pc860[] =
    u"ÇüéâãàÁçêÊèÍÔìÃÂÉÀÈôõòÚùÌÕÜ¢£Ù₧ÓáíóúñÑªº¿Ò¬½¼¡«»░▒▓│┤╡╢╖╕╣║╗╝╜╛┐"
    u"└┴┬├─┼╞╟╚╔╩╦╠═╬╧╨╤╥╙╘╒╓╫╪┘┌█▄▌▐▀αßΓπΣσµτΦΘΩδ∞φε∩≡±≥≤⌠⌡÷≈°∙·√ⁿ²■\u00A0";
constexpr char16_t controlsOf1252[] = u"€\u0081‚ƒ„…†‡ˆ‰Š‹Œ\u008DŽ\u008F\u0090‘’“”•–—˜™š›œ\u009DžŸ";
static_assert(sizeof pc437 == 129 * sizeof(char16_t) && sizeof pc850 == sizeof pc437 &&
              sizeof pc860 == sizeof pc437 && sizeof controlsOf1252 == 33 * sizeof(char16_t));

constexpr unsigned codeTable858 = 19;

} // namespace

bool hasCodeTable(unsigned table)
{
    return table == codeTable437 || table == 2 || table == 3 || table == codeTable1252 ||
           table == codeTable858;
}

char16_t characterOf(unsigned table, unsigned char byte)
{
    if (byte < 0x80) {
        return byte < 0x20 ? u' ' : byte;
    }
    const unsigned index = byte - 0x80U;
    switch (table) {
    case 2:
        return pc850[index];
    case 3:
        return pc860[index];
    case codeTable1252:
        return byte < 0xA0 ? controlsOf1252[index] : byte;
    case codeTable858:
        return byte == 0xD5 ? u'€' : pc850[index];
    default:
        return pc437[index];
    }
}

void appendUtf8(std::string& text, char16_t character)
{
    const unsigned c = character;
    if (c < 0x80) {
        text += static_cast<char>(c);
    } else if (c < 0x800) {
        text += static_cast<char>(0xC0U | (c >> 6U));
        text += static_cast<char>(0x80U | (c & 0x3FU));
    } else {
        text += static_cast<char>(0xE0U | (c >> 12U));
        text += static_cast<char>(0x80U | ((c >> 6U) & 0x3FU));
        text += static_cast<char>(0x80U | (c & 0x3FU));
    }
}

std::u16string fromUtf8(std::string_view text)
{
    std::u16string characters;
    for (std::size_t at = 0; at < text.size();) {
        const auto byte = [&](std::size_t i) {
            return at + i < text.size() ? static_cast<unsigned char>(text[at + i]) : 0U;
        };
        const unsigned lead = byte(0);
        unsigned character = u'?';
        std::size_t length = 1;
        if (lead < 0x80) {
            character = lead;
        } else if ((lead & 0xE0U) == 0xC0) {
            character = (lead & 0x1FU) << 6U | (byte(1) & 0x3FU);
            length = 2;
        } else if ((lead & 0xF0U) == 0xE0) {
            character = (lead & 0x0FU) << 12U | (byte(1) & 0x3FU) << 6U | (byte(2) & 0x3FU);
            length = 3;
        }
        characters += static_cast<char16_t>(character);
        at += length;
    }
    return characters;
}

std::string quoted(std::string_view bytes)
{
    constexpr char digits[] = "0123456789ABCDEF";
    std::string text = "\"";
    for (const char c : bytes) {
        const auto byte = static_cast<unsigned char>(c);
        const char16_t character = characterOf(codeTable1252, byte);
        if (byte < 0x20 || byte == 0x7F || (character >= 0x80 && character < 0xA1)) {
            text += "\\x";
            text += digits[byte >> 4U];
            text += digits[byte & 0xFU];
        } else {
            if (c == '"' || c == '\\') {
                text += '\\';
            }
            appendUtf8(text, character);
        }
    }
    return text + '"';
}

} // namespace virtual_printer
