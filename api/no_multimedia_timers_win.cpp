// Keeps winmm.dll, the system's audio library, out of the programs that load this one: it takes a
// while to load, and Wine's leaves a dozen handles behind when it goes. Of a Qt that is linked in,
// event loops alone use it, for timers that they fall back from when they are refused; no event
// loop runs in this library.
#include <windows.h>

#include <mmsystem.h>

namespace
{

MMRESULT WINAPI refuseTimer(UINT /*delay*/, UINT /*resolution*/, LPTIMECALLBACK /*callback*/,
                            DWORD_PTR /*user*/, UINT /*event*/)
{
    return 0;
}

MMRESULT WINAPI stopTimer(UINT /*timer*/)
{
    return TIMERR_NOCANDO;
}

} // namespace

// Where Qt looks for the two functions.
extern "C" {
__attribute__((used)) decltype(&refuseTimer)
    importedTimeSetEvent asm("__imp__timeSetEvent@20") = refuseTimer;
__attribute__((used)) decltype(&stopTimer)
    importedTimeKillEvent asm("__imp__timeKillEvent@4") = stopTimer;
}
