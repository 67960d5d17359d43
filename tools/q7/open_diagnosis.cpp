#include "open_diagnosis.h"

#include "model_names.h"
#include "q7_impressora.h"
#include "result_codes.h"

namespace q7tool
{
namespace
{

using Outcome = ProbeResult::Outcome;

std::string seconds(std::chrono::milliseconds time)
{
    const auto tenths = (time.count() + 50) / 100;
    return std::to_string(tenths / 10) + ',' + std::to_string(tenths % 10) + " s";
}

Failure otherPrinter(const PrinterAddress& address, int result, const std::string& reply)
{
    const std::string model = modelNamedIn(reply);
    if (model.empty())
        return {Exit::Refused,
                "Quem respondeu em " + address.placeInWords() + " diz ser \"" + reply +
                    "\", que não é um modelo conhecido.",
                "Confira se o endereço é o da impressora certa e se ela está na emulação ESC/POS. "
                "Modelos conhecidos: " +
                    allModelNames() + '.',
                result};
    PrinterAddress other = address;
    other.model = model;
    return {Exit::Refused,
            "Quem respondeu em " + address.placeInWords() + " é uma " + model + ", não uma " +
                address.model + '.',
            "Use o modelo que respondeu: --impressora " + other.text() + '.', result};
}

/** Behind the model check: the link was there, the name was not what the library wanted. */
Failure explainName(const PrinterAddress& address, const OpenEvidence& evidence)
{
    const ProbeResult& probe = evidence.probe;
    if (probe.outcome == Outcome::Answered && modelNamedIn(probe.reply) == address.model) {
        if (probe.replyAfter < libraryPatience)
            return {
                Exit::NoLink,
                "A impressora não respondeu à primeira pergunta, mas respondeu à segunda, em " +
                    seconds(probe.replyAfter) + '.',
                "Tente de novo. Se acontecer sempre, veja se outro programa usa a impressora ao "
                "mesmo tempo.",
                evidence.result};
        return {Exit::NoLink,
                "A impressora respondeu só depois de " + seconds(probe.replyAfter) +
                    "; a biblioteca espera 0,75 s.",
                "Espere a impressora terminar o que está fazendo e tente de novo. Se for sempre "
                "assim, veja a rede, o cabo e se outro programa a está usando.",
                evidence.result};
    }
    if (probe.outcome == Outcome::Answered)
        return otherPrinter(address, evidence.result, probe.reply);
    if (address.kind == Q7_CONNECTION_SERIAL)
        return {Exit::NoLink,
                "A porta " + address.place + " abriu, mas a impressora não respondeu a " +
                    std::to_string(address.number) + " bits por segundo.",
                "Veja se a impressora está ligada e no cabo desta porta, e se a velocidade é a do "
                "autoteste dela.",
                evidence.result};
    return {
        Exit::NoLink,
        "A conexão com " + address.placeInWords() +
            " foi aceita, mas a impressora não respondeu quem é.",
        "Veja se ela está sem papel, com a tampa aberta ou ocupada com outro programa; desligue, "
        "ligue e tente de novo. Confira se o endereço é mesmo o de uma impressora.",
        evidence.result};
}

std::string networkErrorName(int result)
{
    for (const ReturnedConstant& constant : returnedConstants())
        if (constant.enumeration == "Q7NetError" && constant.value == result && result > 0)
            return std::string(constant.name);
    return {};
}

Failure explainNetwork(const PrinterAddress& address, const OpenEvidence& evidence)
{
    const std::string place = address.placeInWords();
    switch (evidence.probe.outcome) {
    case Outcome::HostUnknown:
        return {Exit::NoLink, "O nome \"" + address.place + "\" não foi encontrado na rede.",
                "Confira o nome, ou use o número IP que a impressora imprime no autoteste.",
                evidence.result};
    case Outcome::Refused:
        return {
            Exit::NoLink,
            "A máquina " + address.place + " recusou a conexão na porta " +
                std::to_string(address.number) + '.',
            "O endereço existe, mas nenhuma impressora atende ali: confira o IP e a porta (9100 é "
            "a usual).",
            evidence.result == 0 ? int{Q7_ERR_NOT_OPEN} : evidence.result};
    case Outcome::Unreachable:
    case Outcome::TimedOut:
        return {
            Exit::NoLink, "Ninguém respondeu em " + place + '.',
            "Veja se a impressora está ligada e com o cabo de rede ou o Wi-Fi, e se o IP é o do "
            "autoteste dela.",
            evidence.result};
    case Outcome::Failed:
        return {Exit::NoLink, "A conexão com " + place + " falhou: " + evidence.probe.detail + '.',
                "Veja a rede e o firewall desta máquina e tente de novo.", evidence.result};
    default:
        if (evidence.result > 0 || evidence.result == Q7_ERR_NOT_OPEN || evidence.result == 0)
            return {Exit::NoLink,
                    "A conexão com " + place + " caiu ou demorou, e agora foi aceita.",
                    "Tente de novo. Se acontecer sempre, veja a rede e se outro programa usa a "
                    "impressora ao mesmo tempo.",
                    evidence.result == 0 ? int{Q7_ERR_NOT_OPEN} : evidence.result};
        return explainName(address, evidence);
    }
}

std::string listed(const std::vector<SerialPort>& ports)
{
    std::string names;
    for (const SerialPort& port : ports)
        names += (names.empty() ? "" : ", ") + port.name;
    return names.empty() ? "Este computador não tem nenhuma porta serial."
                         : "As portas deste computador são: " + names + '.';
}

Failure explainSerial(const PrinterAddress& address, const OpenEvidence& evidence)
{
    switch (evidence.result) {
    case Q7_ERR_SERIAL_NOT_FOUND:
        return {Exit::NoLink, "A porta " + address.place + " não existe.",
                listed(evidence.serialPorts) + " Veja se o cabo ou o adaptador USB está ligado.",
                evidence.result};
    case Q7_ERR_SERIAL_DENIED:
        return {
            Exit::NoLink,
            "A porta " + address.place + " está em uso por outro programa, ou sem permissão.",
            "Feche o programa que a está usando (o PDV, um monitor de impressão). No Linux, ponha "
            "o usuário no grupo dialout.",
            evidence.result};
    case Q7_ERR_MODEL:
    case Q7_ERR_UNKNOWN_PRINTER:
        return explainName(address, evidence);
    default:
        return {Exit::NoLink, "A porta " + address.place + " não pôde ser aberta.",
                "Tire e ponha de volta o adaptador, ou reinicie o computador. " +
                    listed(evidence.serialPorts),
                evidence.result};
    }
}

Failure explainUsb(const PrinterAddress& address, const OpenEvidence& evidence)
{
    if (evidence.result == Q7_ERR_USB_OPEN)
        return {Exit::NoLink, "A impressora USB foi encontrada, mas não pôde ser aberta.",
                "Feche o programa que a está usando. No Linux, ponha o usuário no grupo lp.",
                evidence.result};
    if (evidence.result != Q7_ERR_USB_ABSENT)
        return {Exit::NoLink,
                "O sistema recusou a impressora USB com o erro " + std::to_string(evidence.result) +
                    '.',
                "Tire e ponha de volta o cabo USB e tente de novo.", evidence.result};
    if (evidence.usbPrinters.empty())
        return {
            Exit::NoLink, "Nenhuma impressora USB está ligada a este computador.",
            "Veja se ela está ligada e com o cabo, e se aparece no sistema como impressora USB.",
            evidence.result};
    std::string found;
    for (const UsbPrinter& printer : evidence.usbPrinters)
        found += (found.empty() ? "" : ", ") + printer.vendorId + ':' + printer.productId;
    return {Exit::NoLink,
            "Nenhuma das impressoras USB ligadas (" + found + ") tem os identificadores da " +
                address.model + '.',
            "Ponha em q7_usb.ini os identificadores da sua impressora: q7 listar mostra as linhas "
            "prontas.",
            evidence.result};
}

} // namespace

OpenEvidence gatherEvidence(const PrinterAddress& address, int result)
{
    OpenEvidence evidence;
    evidence.result = result;
    switch (address.kind) {
    case Q7_CONNECTION_USB:
        evidence.usbPrinters = usbPrinters();
        break;
    case Q7_CONNECTION_SERIAL:
        evidence.serialPorts = serialPorts();
        if (result == Q7_ERR_MODEL || result == Q7_ERR_UNKNOWN_PRINTER)
            evidence.probe = probePrinter(address, result == Q7_ERR_UNKNOWN_PRINTER);
        break;
    default:
        evidence.probe = probePrinter(address, result == Q7_ERR_UNKNOWN_PRINTER);
        break;
    }
    return evidence;
}

Failure explainOpenFailure(const PrinterAddress& address, const OpenEvidence& evidence)
{
    switch (address.kind) {
    case Q7_CONNECTION_USB:
        return explainUsb(address, evidence);
    case Q7_CONNECTION_SERIAL:
        return explainSerial(address, evidence);
    default:
        Failure failure = explainNetwork(address, evidence);
        failure.codeName = networkErrorName(evidence.result);
        return failure;
    }
}

} // namespace q7tool
