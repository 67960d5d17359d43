// Qt on the threads of a host program that may know nothing of Qt.
#pragma once

namespace q7
{

/** Held while an export (or the library's load) runs Qt on the calling thread, in nested calls too.
 *
 *  Qt keeps data about every thread that it meets and, on Windows, a thread of its own that waits
 *  for the end of each. In a library that may be unloaded nothing of this may stay behind: where Qt
 *  is a part of the library, what Qt made for the calling thread goes again with the outermost
 *  object of this class. */
class ForeignThread
{
public:
    ForeignThread();
    ~ForeignThread(); // NOLINT(performance-trivially-destructible): not so on Windows
    ForeignThread(const ForeignThread&) = delete;
    ForeignThread& operator=(const ForeignThread&) = delete;

private:
    bool m_isOutermost = false;
};

} // namespace q7
