// Keeping the library in memory while a thread runs its code.
#pragma once

namespace q7
{

/** From here until releaseLibrary() the host program's unloading of the library has no effect yet.
 *  Where unloading runs static destructors free of locks, they end the threads, and nothing needs
 *  holding. */
void holdLibrary();
void releaseLibrary();

/** Keeps the library in memory until the process ends. */
void keepLibraryLoaded();

} // namespace q7
