// The library's threads when the host program unloads it or ends.
#pragma once

namespace q7
{

/** From here until releaseLibrary() the host program's unloading of the library has no effect, for
 *  good when the release does not come. Where static destructors may wait for threads, they end
 *  them, and nothing needs holding. */
void holdLibrary();
void releaseLibrary();

/** Keeps the library in memory until the process ends. */
void keepLibraryLoaded();

/** Whether the system has ended all threads but this one, which runs the static destructors. */
bool processIsEnding();

} // namespace q7
