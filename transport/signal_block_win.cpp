#include "signal_block.h"

namespace q7
{

struct SignalBlock::Saved {
};

SignalBlock::SignalBlock(Signals /*signals*/) {}
SignalBlock::~SignalBlock() = default;

} // namespace q7
