#include "privacy.h"

#include "text.h"

#include <array>

namespace q7tool
{
namespace
{

constexpr std::string_view mask = "***";

bool isDigit(char c)
{
    return c >= '0' && c <= '9';
}

// CNPJ numbers may hold capitals.
bool isWordCharacter(char c)
{
    return isDigit(c) || (c >= 'A' && c <= 'Z');
}

/** How much of the text's beginning has the shape: "0" a digit, "X" a digit or a capital. */
bool hasShape(std::string_view text, std::string_view shape)
{
    if (text.size() < shape.size())
        return false;
    for (std::size_t i = 0; i < shape.size(); ++i) {
        const bool fits = shape[i] == '0'   ? isDigit(text[i])
                          : shape[i] == 'X' ? isWordCharacter(text[i])
                                            : text[i] == shape[i];
        if (!fits)
            return false;
    }
    return true;
}

bool isNumberWithoutPunctuation(std::string_view word)
{
    std::size_t digits = 0;
    for (const char c : word)
        digits += isDigit(c) ? 1 : 0;
    if (word.size() == 11)
        return digits == 11;
    return word.size() == 14 && digits >= 6 && isDigit(word[12]) && isDigit(word[13]);
}

} // namespace

std::string withoutPersonalNumbers(std::string_view text)
{
    constexpr std::array<std::string_view, 2> shapes = {"000.000.000-00", "XX.XXX.XXX/XXXX-00"};
    std::string masked;
    for (std::size_t at = 0; at < text.size();) {
        if (!isWordCharacter(text[at])) {
            masked += text[at++];
            continue;
        }
        std::size_t end = at;
        while (end < text.size() && isWordCharacter(text[end]))
            ++end;
        std::size_t length = end - at;
        bool isPersonal = isNumberWithoutPunctuation(text.substr(at, length));
        for (const std::string_view shape : shapes) {
            if (!isPersonal && hasShape(text.substr(at), shape)) {
                isPersonal = true;
                length = shape.size();
            }
        }
        masked += isPersonal ? mask : text.substr(at, length);
        at += length;
    }
    return masked;
}

std::string withoutDocument(const std::string& logMessage)
{
    constexpr std::string_view callMark = ". PARAMETROS:";
    const std::size_t mark = logMessage.find(callMark);
    if (!startsWith(logMessage, "ImprimeXML") || mark == std::string::npos)
        return logMessage;
    const std::size_t begin = mark + callMark.size();
    const std::size_t end = logMessage.rfind('>');
    const std::size_t documentEnd = end == std::string::npos || end < begin ? begin : end + 1;
    std::string text =
        logMessage.substr(0, begin) + "XML de " + std::to_string(documentEnd - begin) + " bytes";
    const std::string rest = logMessage.substr(documentEnd);
    const std::size_t second = rest.find(',', 1);
    const std::size_t last = rest.rfind(',');
    if (second == std::string::npos || last <= second)
        return text + ',' + std::string(mask);
    return text + rest.substr(0, second + 1) + std::string(mask) + rest.substr(last);
}

std::string withoutSecrets(std::string_view ini)
{
    std::string text;
    for (std::size_t at = 0; at < ini.size();) {
        const std::size_t end = std::min(ini.find('\n', at), ini.size());
        const std::string_view line = ini.substr(at, end - at);
        const std::size_t equals = line.find('=');
        const std::string key = upperCase(line.substr(0, std::min(equals, line.size())));
        const bool isSecret =
            equals != std::string_view::npos &&
            (key.find("CSC") != std::string::npos || key.find("TOKEN") != std::string::npos ||
             key.find("SENHA") != std::string::npos);
        text += isSecret ? std::string(line.substr(0, equals + 1)) + std::string(mask)
                         : std::string(line);
        text += '\n';
        at = end + 1;
    }
    return text;
}

} // namespace q7tool
