// The platform's side of the files that the library keeps. Nothing of Qt's: these run on the
// threads of any host, and a path is what the system takes, in whatever encoding the process runs.
#pragma once

#include <QByteArray>
#include <filesystem>

namespace q7
{

/** A path as the system takes it: bytes on Linux, UTF-16 on Windows. */
using NativePath = std::filesystem::path::string_type;

/** Whether something of this name exists, whether or not it can be opened. */
bool fileExists(const NativePath& path);
bool folderExists(const NativePath& path);

/** The process's working folder, without a separator at its end unless it is a root; "." when the
 *  system cannot tell it. */
NativePath workingFolder();

enum class FileState { Missing, Unreadable, Read };

/** Reads a regular file whole into bytes, which are emptied first. Anything else that is found
 *  there (a folder, a pipe) is unreadable; it never waits. */
FileState readFile(const NativePath& path, QByteArray& bytes);

/** Makes a file that does not exist. Returns whether it holds all the bytes; else there is none. */
bool createFile(const NativePath& path, const QByteArray& bytes);

/** A file that gets lines while others may move it away or put it in place: it is opened anew for
 *  each and never made. What stands there is looked up once, when the object is made. */
class AppendedFile
{
public:
    AppendedFile() = default; // does not exist
    explicit AppendedFile(NativePath path);

    bool exists() const { return m_state != State::Missing; }

    /** Adds all of the bytes or, where the disk is full or a limit of the process's is reached, none.
     *  Returns false when what exists cannot be opened for writing or is no regular file. */
    bool append(const QByteArray& bytes) const;

private:
    enum class State { Missing, Irregular, Limited, Free }; // Limited: in size, by the process

    NativePath m_path;
    State m_state = State::Missing;
};

} // namespace q7
