#include "file_access.h"

#include <windows.h>

namespace q7
{
namespace
{

/** A file, open. Others may read and write it at the same time. */
class OpenFile
{
public:
    OpenFile(const NativePath& path, DWORD access, DWORD disposition)
        : m_handle(::CreateFileW(path.c_str(), access, FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr,
                                 disposition, FILE_ATTRIBUTE_NORMAL, nullptr))
    {
        m_error = m_handle == INVALID_HANDLE_VALUE ? ::GetLastError() : ERROR_SUCCESS;
    }
    ~OpenFile()
    {
        if (m_handle != INVALID_HANDLE_VALUE)
            ::CloseHandle(m_handle);
    }
    OpenFile(const OpenFile&) = delete;
    OpenFile& operator=(const OpenFile&) = delete;

    bool isOpen() const { return m_error == ERROR_SUCCESS; }
    bool isMissing() const
    {
        return m_error == ERROR_FILE_NOT_FOUND || m_error == ERROR_PATH_NOT_FOUND;
    }

    /** Writes all of the bytes at the file's end, or none. */
    bool append(const QByteArray& bytes) const
    {
        OVERLAPPED atEnd = {};
        atEnd.Offset = atEnd.OffsetHigh = 0xFFFFFFFF;
        const auto length = static_cast<DWORD>(bytes.size());
        DWORD written = 0;
        if (::WriteFile(m_handle, bytes.constData(), length, &written, &atEnd) != FALSE &&
            written == length)
            return true;
        // A full disk takes a part. It is taken back, unless another process has gone on behind it.
        LARGE_INTEGER end = {};
        LARGE_INTEGER size = {};
        if (written > 0 && ::SetFilePointerEx(m_handle, {}, &end, FILE_CURRENT) != FALSE &&
            ::GetFileSizeEx(m_handle, &size) != FALSE && size.QuadPart == end.QuadPart) {
            end.QuadPart -= written;
            if (::SetFilePointerEx(m_handle, end, nullptr, FILE_BEGIN) != FALSE)
                ::SetEndOfFile(m_handle);
        }
        return false;
    }

    bool read(QByteArray& bytes) const
    {
        char block[4096];
        DWORD length = 0;
        BOOL isRead = FALSE;
        while ((isRead = ::ReadFile(m_handle, block, sizeof block, &length, nullptr)) != FALSE &&
               length > 0)
            bytes.append(block, static_cast<int>(length));
        return isRead != FALSE;
    }

private:
    HANDLE m_handle;
    DWORD m_error;
};

} // namespace

bool fileExists(const NativePath& path)
{
    return ::GetFileAttributesW(path.c_str()) != INVALID_FILE_ATTRIBUTES;
}

bool folderExists(const NativePath& path)
{
    const DWORD attributes = ::GetFileAttributesW(path.c_str());
    return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
}

NativePath workingFolder()
{
    NativePath path(MAX_PATH, L'\0');
    DWORD length = ::GetCurrentDirectoryW(MAX_PATH, path.data());
    if (length >= path.size()) {
        path.resize(length);
        length = ::GetCurrentDirectoryW(length, path.data());
    }
    path.resize(length < path.size() ? length : 0);
    return path.empty() ? L"." : path;
}

FileState readFile(const NativePath& path, QByteArray& bytes)
{
    bytes.clear();
    const OpenFile file(path, GENERIC_READ, OPEN_EXISTING);
    if (file.isMissing())
        return FileState::Missing;
    return file.isOpen() && file.read(bytes) ? FileState::Read : FileState::Unreadable;
}

bool createFile(const NativePath& path, const QByteArray& bytes)
{
    {
        const OpenFile file(path, GENERIC_WRITE, CREATE_NEW);
        if (!file.isOpen() || file.append(bytes))
            return file.isOpen();
    }
    ::DeleteFileW(path.c_str());
    return false;
}

AppendedFile::AppendedFile(NativePath path) : m_path(std::move(path))
{
    if (fileExists(m_path))
        m_state = State::Free;
}

bool AppendedFile::append(const QByteArray& bytes) const
{
    const OpenFile file(m_path, GENERIC_WRITE, OPEN_EXISTING);
    if (file.isOpen())
        file.append(bytes);
    return file.isOpen() || file.isMissing();
}

} // namespace q7
