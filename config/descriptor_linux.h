// Keeps what the library opens away from the standard descriptors.
#pragma once

#include <cerrno>
#include <fcntl.h>
#include <system_error>
#include <unistd.h>

namespace q7
{

/** The same open file under a descriptor above 2. To be called on whatever was just opened: in a
 *  program that closed 0, 1 or 2, the system gives out these numbers again, and what the program
 *  prints would reach the printer or the log.
 *  Takes the descriptor over: one that is replaced is closed, -1 stays -1. Returns -1 with errno
 *  when there is no other to be had. */
inline int aboveStandard(int descriptor)
{
    if (descriptor < 0 || descriptor > STDERR_FILENO)
        return descriptor;
    const int replacement = ::fcntl(descriptor, F_DUPFD_CLOEXEC, STDERR_FILENO + 1);
    const int error = errno;
    ::close(descriptor);
    errno = error;
    return replacement;
}

/** Closes what was opened unless somebody takes it, also where taking it fails for want of memory. */
class OwnedDescriptor
{
public:
    explicit OwnedDescriptor(int descriptor) : m_descriptor(descriptor) {}
    ~OwnedDescriptor()
    {
        if (m_descriptor >= 0)
            ::close(m_descriptor);
    }
    OwnedDescriptor(const OwnedDescriptor&) = delete;
    OwnedDescriptor& operator=(const OwnedDescriptor&) = delete;

    bool isOpen() const { return m_descriptor >= 0; }
    int get() const { return m_descriptor; }

    /** Lets a stream of Asio's have it. */
    template <typename Assign> std::error_code handTo(Assign assign)
    {
        std::error_code error;
        assign(m_descriptor, error);
        if (!error)
            m_descriptor = -1;
        return error;
    }

private:
    int m_descriptor;
};

} // namespace q7
