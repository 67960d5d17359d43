// Which printer is played and in which state, and what it answers when it is asked.
#pragma once

#include "command.h"

namespace virtual_printer
{

/** A printer model as its maker's manual has it. */
struct Model {
    std::string_view name;
    int columnsFontA;     // characters of font A on a line
    bool tildeQueries;    // answers ~HI, as label printers do
    bool picksCode128Set; // Code 128 data come without a set selector
    /** In page mode a symbol stands on the line of text at the print position (its foot is that
     *  line's foot); otherwise it hangs from the print position. */
    bool symbolsStandOnLine;
    unsigned powerOnCodeTable = 0; // in force until ESC t, and again after ESC @

    int widthDots() const { return columnsFontA * 12; }
};

/** The model of that name in any letter case; null when there is none. */
const Model* findModel(std::string_view name);
/** All names, separated by blanks. */
std::string modelNames();

struct State {
    bool paperOut = false;
    bool paperNearEnd = false;
    bool coverOpen = false;
    bool drawerOpen = false;      // the drawer connector's signal is low
    bool sensorSignalled = false; // bit 0x20 of the third byte that DLE EOT 20 gives

    /** Switches on the state of that name ("paper-out", "near-end", "cover-open", "drawer-open",
     *  "sensor"); false when there is none. */
    bool set(std::string_view name);
};

/** The answer to a query; empty for what is no query. */
std::string replyTo(const Command& command, const Model& model, const State& state);

/** The four bytes that a printer sends unasked when its state changes (GS a). */
std::string automaticStatus(const State& state);

} // namespace virtual_printer
