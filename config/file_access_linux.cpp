#include "file_access.h"

#include "descriptor_linux.h"

#include <climits>
#include <sys/resource.h>
#include <sys/stat.h>

namespace q7
{
namespace
{

/** A regular file, open. */
class RegularFile
{
public:
    // A pipe's open and a terminal's would wait or take hold of the process.
    RegularFile(const NativePath& path, int flags, mode_t mode = 0)
        : m_descriptor(
              aboveStandard(::open(path.c_str(), flags | O_CLOEXEC | O_NONBLOCK | O_NOCTTY, mode)))
    {
        m_error = m_descriptor < 0 ? errno : 0;
        if (m_error == 0 && (::fstat(m_descriptor, &m_status) != 0 || !S_ISREG(m_status.st_mode)))
            m_error = EINVAL;
    }
    ~RegularFile()
    {
        if (m_descriptor >= 0)
            ::close(m_descriptor);
    }
    RegularFile(const RegularFile&) = delete;
    RegularFile& operator=(const RegularFile&) = delete;

    int error() const { return m_error; } // 0 when it can be used
    bool isMissing() const { return m_error == ENOENT || m_error == ENOTDIR; }

    /** Writes all of the bytes at the file's end, or none. */
    bool append(const QByteArray& bytes) const
    {
        // Past the limit a write would end the process by a signal.
        rlimit limit = {};
        if (::getrlimit(RLIMIT_FSIZE, &limit) == 0 && limit.rlim_cur != RLIM_INFINITY &&
            static_cast<rlim_t>(m_status.st_size + bytes.size()) > limit.rlim_cur)
            return false;
        const ssize_t written =
            TEMP_FAILURE_RETRY(::write(m_descriptor, bytes.constData(), std::size_t(bytes.size())));
        if (written == bytes.size())
            return true;
        // A full disk takes a part. It is taken back, unless another process has gone on behind it.
        struct stat status = {};
        const off_t end = ::lseek(m_descriptor, 0, SEEK_CUR);
        if (written > 0 && ::fstat(m_descriptor, &status) == 0 && status.st_size == end)
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
    int m_error = 0;
    struct stat m_status = {};
};

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
    const RegularFile file(path, O_RDONLY);
    if (file.isMissing())
        return FileState::Missing;
    return file.error() == 0 && file.read(bytes) ? FileState::Read : FileState::Unreadable;
}

bool createFile(const NativePath& path, const QByteArray& bytes)
{
    const RegularFile file(path, O_WRONLY | O_CREAT | O_EXCL, 0666);
    if (file.error() != 0)
        return false;
    if (file.append(bytes))
        return true;
    ::unlink(path.c_str());
    return false;
}

bool appendToFile(const NativePath& path, const QByteArray& bytes)
{
    const RegularFile file(path, O_WRONLY | O_APPEND);
    if (file.error() == 0)
        file.append(bytes);
    return file.error() == 0 || file.isMissing();
}

} // namespace q7
