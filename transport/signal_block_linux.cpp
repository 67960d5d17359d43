#include "signal_block.h"

#include <csignal>
#include <ctime>

namespace q7
{

struct SignalBlock::Saved {
    sigset_t mask;
    bool takesBrokenPipe; // this block is what keeps it from the host
};

SignalBlock::SignalBlock(Signals signals) : m_saved(std::make_unique<Saved>())
{
    sigset_t blocked;
    if (signals == Every)
        sigfillset(&blocked);
    else {
        sigemptyset(&blocked);
        sigaddset(&blocked, SIGPIPE);
    }
    pthread_sigmask(SIG_BLOCK, &blocked, &m_saved->mask);
    m_saved->takesBrokenPipe = signals == BrokenPipe && sigismember(&m_saved->mask, SIGPIPE) == 0;
}

SignalBlock::~SignalBlock()
{
    if (m_saved->takesBrokenPipe) {
        sigset_t brokenPipe;
        sigemptyset(&brokenPipe);
        sigaddset(&brokenPipe, SIGPIPE);
        const timespec now = {};
        sigtimedwait(&brokenPipe, nullptr, &now);
    }
    pthread_sigmask(SIG_SETMASK, &m_saved->mask, nullptr);
}

} // namespace q7
