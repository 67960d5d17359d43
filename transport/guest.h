// Being a good guest in the process that loads the library: threads of its own that the host never
// notices, taking turns, being unloaded and being forked.
#pragma once

#include <functional>
#include <memory>

namespace q7
{

/** A thread of the library's own. It takes none of the host's signals, and the library stays in
 *  memory until it has ended, also when the host program unloads it meanwhile. */
class OwnThread
{
public:
    using Function = std::function<void()>;

    /** work: what the thread does; an exception ends it silently. interrupt: called from another
     *  thread, asks it to end soon. Throws where the system has no thread to give. */
    explicit OwnThread(
        Function work, Function interrupt = [] {});
    ~OwnThread();
    OwnThread(const OwnThread&) = delete;
    OwnThread& operator=(const OwnThread&) = delete;

    /** Interrupts the thread and waits for its end. Returns false where it never came to its own
     *  end, so that what it worked on is in no known state: in a process that was forked off
     *  meanwhile, and in one whose end has taken all threads but the calling one. */
    bool stop();

    /** Lets the thread come to its end whenever it does. */
    void leaveBehind();

private:
    struct Thread;
    std::unique_ptr<Thread> m_thread; // null once stopped or left behind
};

/** Taking turns. A thread that has the turn may take it again. */
class Turn
{
public:
    Turn();
    ~Turn();
    Turn(const Turn&) = delete;
    Turn& operator=(const Turn&) = delete;
};

/** How many forks lie between this process and the one that loaded the library. */
unsigned forkCount();

} // namespace q7
