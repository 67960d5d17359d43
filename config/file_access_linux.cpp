#include "file_access.h"

#include "descriptor_linux.h"

#include <climits>
#include <sys/resource.h>
#include <sys/stat.h>

namespace q7
{
namespace
{

/** A file, open. Nothing waits, as for a pipe's other end. */
class OpenFile
{
public:
    OpenFile(const NativePath& path, int flags, mode_t mode = 0)
        : m_descriptor(
              aboveStandard(::open(path.c_str(), flags | O_CLOEXEC | O_NONBLOCK | O_NOCTTY, mode))),
          m_error(m_descriptor < 0 ? errno : 0)
    {
    }
    ~OpenFile()
    {
        if (m_descriptor >= 0)
            ::close(m_descriptor);
    }
    OpenFile(const OpenFile&) = delete;
    OpenFile& operator=(const OpenFile&) = delete;

    bool isOpen() const { return m_error == 0; }
    bool isMissing() const { return m_error == ENOENT || m_error == ENOTDIR; }

    /** The size of a regular file, else -1. */
    off_t size() const
    {
        struct stat status = {};
        return ::fstat(m_descriptor, &status) == 0 && S_ISREG(status.st_mode) ? status.st_size : -1;
    }

    /** Writes all of the bytes at the file's end, or none. */
    bool append(const QByteArray& bytes) const
    {
        const ssize_t written =
            TEMP_FAILURE_RETRY(::write(m_descriptor, bytes.constData(), std::size_t(bytes.size())));
        if (written == bytes.size())
            return true;
        // A full disk takes a part. It is taken back, unless another process has gone on behind it.
        const off_t end = ::lseek(m_descriptor, 0, SEEK_CUR);
        if (written > 0 && size() == end)
            (void)!::ftruncate(m_descriptor, end - written);
        return false;
    }

    bool read(QByteArray& bytes) const
    {
        char block[4096];
        ssize_t length = 0;
        while ((length = TEMP_FAILURE_RETRY(::read(m_descriptor, block, sizeof block))) > 0)
            bytes.append(block, static_cast<int>(length));
        return length == 0;
    }

private:
    int m_descriptor;
    int m_error;
};

// Past this size a write would end the process by a signal.
rlim_t sizeLimit()
{
    rlimit limit = {};
    return ::getrlimit(RLIMIT_FSIZE, &limit) == 0 ? limit.rlim_cur : RLIM_INFINITY;
}

} // namespace

bool fileExists(const NativePath& path)
{
    return ::access(path.c_str(), F_OK) == 0;
}

bool folderExists(const NativePath& path)
{
    struct stat status = {};
    return ::stat(path.c_str(), &status) == 0 && S_ISDIR(status.st_mode);
}

NativePath workingFolder()
{
    char path[PATH_MAX];
    return ::getcwd(path, sizeof path) == nullptr ? "." : path;
}

FileState readFile(const NativePath& path, QByteArray& bytes)
{
    bytes.clear();
    const OpenFile file(path, O_RDONLY);
    if (file.isMissing())
        return FileState::Missing;
    return file.isOpen() && file.size() >= 0 && file.read(bytes) ? FileState::Read
                                                                 : FileState::Unreadable;
}

bool createFile(const NativePath& path, const QByteArray& bytes)
{
    if (static_cast<rlim_t>(bytes.size()) > sizeLimit())
        return false;
    const OpenFile file(path, O_WRONLY | O_CREAT | O_EXCL, 0666);
    if (!file.isOpen() || file.append(bytes))
        return file.isOpen();
    ::unlink(path.c_str());
    return false;
}

AppendedFile::AppendedFile(NativePath path) : m_path(std::move(path))
{
    struct stat status = {};
    if (::stat(m_path.c_str(), &status) == 0)
        m_state = !S_ISREG(status.st_mode)       ? State::Irregular
                  : sizeLimit() == RLIM_INFINITY ? State::Free
                                                 : State::Limited;
}

bool AppendedFile::append(const QByteArray& bytes) const
{
    if (m_state == State::Irregular)
        return false;
    const OpenFile file(m_path, O_WRONLY | O_APPEND);
    if (file.isOpen() &&
        (m_state == State::Free || static_cast<rlim_t>(file.size() + bytes.size()) <= sizeLimit()))
        file.append(bytes);
    return file.isOpen() || file.isMissing();
}

} // namespace q7
