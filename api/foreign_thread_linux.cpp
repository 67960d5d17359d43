#include "foreign_thread.h"

namespace q7
{

// Qt is a library of its own here, shared with the host, and cleans up when a thread ends.
ForeignThread::ForeignThread() : m_isOutermost(false) {}
ForeignThread::~ForeignThread() = default;

} // namespace q7
