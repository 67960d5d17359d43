// The state that a printer tells of itself.
#pragma once

#include "answer.h"
#include "printer_address.h"
#include "printer_library.h"

namespace q7tool
{

struct PrinterState {
    enum class Paper { Unknown, Present, NearEnd, Out };
    enum class Cover { Unknown, Open, Closed };
    enum class Drawer { Unknown, SignalLow, SignalHigh };

    Paper paper = Paper::Unknown;
    Cover cover = Cover::Unknown;
    Drawer drawer = Drawer::Unknown; // not asked for over the network
    /** The first failure of a query, 0 when all were answered. */
    int failure = 0;

    bool isKnown() const { return paper != Paper::Unknown || cover != Cover::Unknown; }
    bool canPrint() const { return paper != Paper::Out && cover != Cover::Open; }
};

/** Asks; stops at the first query that fails. */
PrinterState askState(const PrinterLibrary& library, Q7Connection kind);

void tellState(const PrinterState& state, Answer& answer);

/** Throws Failure when the printer says that it cannot print. */
void demandPaperAndCover(const PrinterState& state);

} // namespace q7tool
