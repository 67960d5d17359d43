// Keeping the host program's signals out of what the library does.
#pragma once

#include <memory>

namespace q7
{

/** For its life, this thread takes none of the signals named, and threads that it starts never do.
 *  Nothing on systems without signals. */
class SignalBlock
{
public:
    enum Signals {
        Every,
        /** What writing to a connection raises that the other side has reset, whatever the host has
         *  arranged for it. One raised meanwhile is taken back at the end. Links are used with this
         *  in force. */
        BrokenPipe,
    };

    explicit SignalBlock(Signals signals);
    ~SignalBlock();
    SignalBlock(const SignalBlock&) = delete;
    SignalBlock& operator=(const SignalBlock&) = delete;

private:
    struct Saved;
    std::unique_ptr<Saved> m_saved;
};

} // namespace q7
