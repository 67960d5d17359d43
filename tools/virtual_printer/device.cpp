#include "device.h"

#include <algorithm>
#include <cctype>

namespace virtual_printer
{
namespace
{

// Models without a stated width are drawn on the usual 80 mm paper.
constexpr Model models[] = {
    {"VANTA", 48, false, false, false},    {"VESPA", 48, false, false, false},
    {"VOLTA", 48, false, false, true},     {"ORLA-K", 42, false, false, true},
    {"PINTA", 48, false, false, false},    {"RANZA", 48, false, false, false},
    {"RANZAPRO", 48, false, false, false}, {"SORBE", 42, false, true, false},
    {"SALVI", 48, false, false, false},    {"DUNEL", 48, false, false, false},
    {"TESMO", 48, true, false, false},
};

std::string oneByte(unsigned value)
{
    return std::string(1, static_cast<char>(value));
}

std::string withHeader(std::string_view text)
{
    return std::string("_").append(text).append(1, '\0');
}

std::string statusReply(unsigned kind, const State& state)
{
    constexpr unsigned fixedBits = 0x12;
    const bool offline = state.coverOpen || state.paperOut;
    switch (kind) {
    case 1:
        return oneByte(fixedBits | (state.drawerOpen ? 0U : 0x04U) | (offline ? 0x08U : 0U));
    case 2:
        return oneByte(fixedBits | (state.coverOpen ? 0x04U : 0U) | (state.paperOut ? 0x20U : 0U));
    case 3:
        return oneByte(fixedBits);
    case 4:
        return oneByte(fixedBits | (state.paperNearEnd || state.paperOut ? 0x0CU : 0U) |
                       (state.paperOut ? 0x60U : 0U));
    case 20:
        return oneByte(fixedBits) + oneByte(fixedBits) +
               oneByte(fixedBits | (state.sensorSignalled ? 0x20U : 0U));
    default:
        return {};
    }
}

std::string identificationReply(unsigned kind, const Model& model)
{
    switch (kind) {
    case 1:
    case '1':
        return oneByte(0x20);
    case 2:
    case '2':
        return oneByte(0x02);
    case 3:
    case '3':
        return oneByte(0x31);
    case 'A':
        return withHeader("1.00");
    case 'B':
        return withHeader("VIRTUAL");
    case 'C':
        return withHeader(model.name);
    case 'D':
        return withHeader("VP00000001");
    case 'E':
        return withHeader("PC437/PC850/PC860/WPC1252/PC858");
    default:
        return {};
    }
}

} // namespace

const Model* findModel(std::string_view name)
{
    const auto* hit = std::find_if(std::begin(models), std::end(models), [&](const Model& model) {
        return std::equal(name.begin(), name.end(), model.name.begin(), model.name.end(),
                          [](unsigned char a, unsigned char b) { return std::toupper(a) == b; });
    });
    return hit == std::end(models) ? nullptr : hit;
}

std::string modelNames()
{
    std::string names;
    for (const Model& model : models) {
        names.append(names.empty() ? "" : " ").append(model.name);
    }
    return names;
}

bool State::set(std::string_view name)
{
    const std::pair<std::string_view, bool*> states[] = {{"paper-out", &paperOut},
                                                         {"near-end", &paperNearEnd},
                                                         {"cover-open", &coverOpen},
                                                         {"drawer-open", &drawerOpen},
                                                         {"sensor", &sensorSignalled}};
    for (const auto& [known, flag] : states) {
        if (known == name) {
            return *flag = true;
        }
    }
    return false;
}

std::string replyTo(const Command& command, const Model& model, const State& state)
{
    switch (command.op) {
    case Op::StatusQuery:
        if (command.bytes[0] == '\x10') {
            return statusReply(command.arg(0), state);
        }
        // GS r: 1 paper sensors, 2 drawer
        return command.arg(0) % 48 == 1
                   ? oneByte((state.paperNearEnd ? 0x03U : 0U) | (state.paperOut ? 0x0CU : 0U))
               : command.arg(0) % 48 == 2 ? oneByte(state.drawerOpen ? 0U : 1U)
                                          : std::string();
    case Op::IdentificationQuery:
        return identificationReply(command.arg(0), model);
    case Op::TildeIdentification:
        return std::string("\x02").append(model.name).append(",V1.00,8,8192KB\x03\r\n");
    case Op::AutomaticStatus:
        return command.arg(0) != 0 ? automaticStatus(state) : std::string();
    default:
        return {};
    }
}

std::string automaticStatus(const State& state)
{
    const bool offline = state.coverOpen || state.paperOut;
    return oneByte(0x10U | (state.drawerOpen ? 0U : 0x04U) | (offline ? 0x08U : 0U) |
                   (state.coverOpen ? 0x20U : 0U)) +
           oneByte(0) +
           oneByte((state.paperNearEnd || state.paperOut ? 0x03U : 0U) |
                   (state.paperOut ? 0x0CU : 0U)) +
           oneByte(0);
}

} // namespace virtual_printer
