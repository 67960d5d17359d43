// The numbers in which StatusImpressora speaks: what can be asked for, what is answered.
#pragma once

namespace q7
{

/** What StatusImpressora can ask for; each has its own real-time request. */
enum StatusKind : int { DrawerStatus = 1, CoverStatus, PaperStatus, SensorStatus, CombinedStatus };

/** The states that the single queries answer with. */
enum State : int {
    DrawerLow = 1,
    DrawerHigh,
    CoverOpen,
    CoverClosed,
    PaperPresent,
    PaperNearEnd,
    PaperOut,
    SensorClear,
    SensorSignalled,
};

/** What the combined query's answer is the sum of. Paper that is out is near its end too. */
enum CombinedState : int {
    DrawerLowBit = 1,
    CoverOpenBit = 2,
    PaperNearEndBit = 4,
    PaperOutBit = 8,
    SensorSignalledBit = 16,
};

} // namespace q7
