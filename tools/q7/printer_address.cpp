#include "printer_address.h"

#include "failure.h"
#include "model_names.h"
#include "text.h"

#include <CLI/App.hpp>
#include <algorithm>
#include <array>

namespace q7tool
{
namespace
{

constexpr int usualTcpPort = 9100;
constexpr int usualSpeed = 9600;
constexpr int highestPort = 65535;
constexpr std::array<int, 9> speeds = {300, 1200, 2400, 4800, 9600, 19200, 38400, 57600, 115200};

Failure misunderstood(const std::string& text, const std::string& why)
{
    return {Exit::Usage,
            "A impressora \"" + text + "\" não foi entendida: " + why + '.',
            "Escreva por exemplo VANTA@net:192.168.0.10, VANTA@com:COM3:9600 ou VANTA@usb.",
            {}};
}

/** Takes ":9100" off the end of a place. A host may hold colons itself, in brackets. */
int takeNumber(std::string& place, int usual, const std::string& whole)
{
    const std::size_t colon = place.rfind(':');
    if (colon == std::string::npos || place.find(']', colon) != std::string::npos)
        return usual;
    int number = 0;
    if (!toNumber(std::string_view(place).substr(colon + 1), number))
        throw misunderstood(whole, "\"" + place.substr(colon + 1) + "\" não é um número");
    place.erase(colon);
    return number;
}

} // namespace

std::string PrinterAddress::text() const
{
    if (kind == Q7_CONNECTION_USB)
        return model + "@usb";
    return model + (kind == Q7_CONNECTION_TCP ? "@net:" : "@com:") + place + ':' +
           std::to_string(number);
}

std::string PrinterAddress::placeInWords() const
{
    switch (kind) {
    case Q7_CONNECTION_USB:
        return "USB";
    case Q7_CONNECTION_SERIAL:
        return place + " a " + std::to_string(number) + " bits por segundo";
    default:
        return place + ", porta " + std::to_string(number);
    }
}

PrinterAddress parsePrinterAddress(const std::string& text)
{
    const std::size_t at = text.find('@');
    if (at == std::string::npos)
        throw misunderstood(text, "falta o \"@\" entre o modelo e o lugar");
    PrinterAddress address;
    address.model = upperCase(text.substr(0, at));
    if (!isModelName(address.model))
        throw misunderstood(text, "os modelos são " + allModelNames());
    const std::string link = upperCase(text.substr(at + 1, 4));
    if (startsWith(link, "USB")) {
        if (text.size() > at + 4)
            throw misunderstood(text, "depois de \"usb\" não vem nada");
        address.kind = Q7_CONNECTION_USB;
        return address;
    }
    if (link != "NET:" && link != "COM:")
        throw misunderstood(text, "depois do \"@\" vem net:, com: ou usb");
    address.kind = link == "NET:" ? Q7_CONNECTION_TCP : Q7_CONNECTION_SERIAL;
    address.place = text.substr(at + 1 + link.size());
    if (address.kind == Q7_CONNECTION_TCP) {
        address.number = takeNumber(address.place, usualTcpPort, text);
        if (address.number < 1 || address.number > highestPort)
            throw misunderstood(text, "a porta vai de 1 a 65535");
        if (address.place.size() > 2 && address.place.front() == '[' && address.place.back() == ']')
            address.place = address.place.substr(1, address.place.size() - 2);
    } else {
        address.number = takeNumber(address.place, usualSpeed, text);
        if (std::find(speeds.begin(), speeds.end(), address.number) == speeds.end())
            throw misunderstood(text, "a velocidade é 300, 1200, 2400, 4800, 9600, 19200, 38400, "
                                      "57600 ou 115200");
    }
    if (address.place.empty())
        throw misunderstood(text, "falta o endereço ou a porta");
    return address;
}

void addPrinterOption(CLI::App& command, std::string& text, bool required)
{
    command
        .add_option("-i,--impressora", text,
                    "Por exemplo VANTA@net:192.168.0.10:9100, VESPA@com:COM3:9600 ou PINTA@usb")
        ->option_text(required ? "MODELO@LUGAR (obrigatório)" : "MODELO@LUGAR")
        ->required(required);
}

} // namespace q7tool
