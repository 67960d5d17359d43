#include "code_table.h"

namespace virtual_printer
{
namespace
{

// The upper halves, 0x80 to 0xFF.
constexpr char16_t kPc437[] =
    u"ÇüéâäàåçêëèïîìÄÅÉæÆôöòûùÿÖÜ¢£¥₧ƒáíóúñÑªº¿⌐¬½¼¡«»░▒▓│┤╡╢╖╕╣║╗╝╜╛┐"
    u"└┴┬├─┼╞╟╚╔╩╦╠═╬╧╨╤╥╙╘╒╓╫╪┘┌█▄▌▐▀αßΓπΣσµτΦΘΩδ∞φε∩≡±≥≤⌠⌡÷≈°∙·√ⁿ²■\u00A0";
constexpr char16_t kPc850[] =
    u"ÇüéâäàåçêëèïîìÄÅÉæÆôöòûùÿÖÜø£Ø×ƒáíóúñÑªº¿®¬½¼¡«»░▒▓│┤ÁÂÀ©╣║╗╝¢¥┐"
    u"└┴┬├─┼ãÃ╚╔╩╦╠═╬¤ðÐÊËÈıÍÎÏ┘┌█▄¦Ì▀ÓßÔÒõÕµþÞÚÛÙýÝ¯´\u00AD±‗¾¶§÷¸°¨·¹³²■\u00A0";
constexpr char16_t kPc860[] =
    u"ÇüéâãàÁçêÊèÍÔìÃÂÉÀÈôõòÚùÌÕÜ¢£Ù₧ÓáíóúñÑªº¿Ò¬½¼¡«»░▒▓│┤╡╢╖╕╣║╗╝╜╛┐"
    u"└┴┬├─┼╞╟╚╔╩╦╠═╬╧╨╤╥╙╘╒╓╫╪┘┌█▄▌▐▀αßΓπΣσµτΦΘΩδ∞φε∩≡±≥≤⌠⌡÷≈°∙·√ⁿ²■\u00A0";
constexpr char16_t k1252Controls[] = u"€\u0081‚ƒ„…†‡ˆ‰Š‹Œ\u008DŽ\u008F\u0090‘’“”•–—˜™š›œ\u009DžŸ";
static_assert(sizeof kPc437 == 129 * sizeof(char16_t) && sizeof kPc850 == sizeof kPc437 &&
              sizeof kPc860 == sizeof kPc437 && sizeof k1252Controls == 33 * sizeof(char16_t));

constexpr unsigned kCodeTable858 = 19;

} // namespace

bool hasCodeTable(unsigned table)
{
    return table == kCodeTable437 || table == 2 || table == 3 || table == kCodeTable1252 ||
           table == kCodeTable858;
}

char16_t characterOf(unsigned table, unsigned char byte)
{
    if (byte < 0x80) {
        return byte < 0x20 ? u' ' : byte;
    }
    const unsigned index = byte - 0x80U;
    switch (table) {
    case 2:
        return kPc850[index];
    case 3:
        return kPc860[index];
    case kCodeTable1252:
        return byte < 0xA0 ? k1252Controls[index] : byte;
    case kCodeTable858:
        return byte == 0xD5 ? u'€' : kPc850[index];
    default:
        return kPc437[index];
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

std::string quoted(std::string_view bytes)
{
    constexpr char digits[] = "0123456789ABCDEF";
    std::string text = "\"";
    for (const char c : bytes) {
        const auto byte = static_cast<unsigned char>(c);
        const char16_t character = characterOf(kCodeTable1252, byte);
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
