#include "printer_state.h"

#include <nlohmann/json.hpp>

namespace q7tool
{
namespace
{

const char* inWords(PrinterState::Paper paper)
{
    switch (paper) {
    case PrinterState::Paper::Present:
        return "presente";
    case PrinterState::Paper::NearEnd:
        return "acabando";
    case PrinterState::Paper::Out:
        return "acabou";
    default:
        return "não informado";
    }
}

const char* inWords(PrinterState::Cover cover)
{
    switch (cover) {
    case PrinterState::Cover::Open:
        return "aberta";
    case PrinterState::Cover::Closed:
        return "fechada";
    default:
        return "não informada";
    }
}

const char* inWords(PrinterState::Drawer drawer)
{
    switch (drawer) {
    case PrinterState::Drawer::SignalLow:
        return "sinal baixo";
    case PrinterState::Drawer::SignalHigh:
        return "sinal alto";
    default:
        return "não informada";
    }
}

} // namespace

PrinterState askState(const PrinterLibrary& library, Q7Connection kind)
{
    PrinterState state;
    const auto ask = [&](int query) {
        const int reply = state.failure == 0 ? library.StatusImpressora(query) : 0;
        if (reply < 0)
            state.failure = reply;
        return reply;
    };
    const int cover = ask(Q7_STATUS_COVER);
    if (cover == Q7_STATE_COVER_OPEN || cover == Q7_STATE_COVER_CLOSED)
        state.cover =
            cover == Q7_STATE_COVER_OPEN ? PrinterState::Cover::Open : PrinterState::Cover::Closed;
    const int paper = ask(Q7_STATUS_PAPER);
    if (paper == Q7_STATE_PAPER_OUT)
        state.paper = PrinterState::Paper::Out;
    else if (paper == Q7_STATE_PAPER_NEAR_END || paper == Q7_STATE_PAPER_PRESENT)
        state.paper = paper == Q7_STATE_PAPER_NEAR_END ? PrinterState::Paper::NearEnd
                                                       : PrinterState::Paper::Present;
    if (kind != Q7_CONNECTION_TCP) {
        const int drawer = ask(Q7_STATUS_DRAWER);
        if (drawer == Q7_STATE_DRAWER_LOW || drawer == Q7_STATE_DRAWER_HIGH)
            state.drawer = drawer == Q7_STATE_DRAWER_LOW ? PrinterState::Drawer::SignalLow
                                                         : PrinterState::Drawer::SignalHigh;
    }
    return state;
}

void tellState(const PrinterState& state, Answer& answer)
{
    answer.fact("papel", "Papel", inWords(state.paper));
    answer.fact("tampa", "Tampa", inWords(state.cover));
    if (state.drawer != PrinterState::Drawer::Unknown)
        answer.fact("gaveta", "Gaveta", inWords(state.drawer));
    answer.fact("pode_imprimir", "Pode imprimir", state.isKnown() ? Json(state.canPrint()) : Json(),
                state.isKnown() ? "" : "a impressora não informou");
}

void demandPaperAndCover(const PrinterState& state)
{
    if (state.cover == PrinterState::Cover::Open)
        throw Failure{Exit::CannotPrint,
                      "A tampa da impressora está aberta.",
                      state.paper == PrinterState::Paper::Out
                          ? "Ponha papel e feche a tampa até travar."
                          : "Feche a tampa até travar.",
                      {}};
    if (state.paper == PrinterState::Paper::Out)
        throw Failure{Exit::CannotPrint,
                      "A impressora está sem papel.",
                      "Ponha uma bobina nova, com o lado térmico para a cabeça, e feche a tampa.",
                      {}};
}

} // namespace q7tool
