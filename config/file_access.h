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

/** Appends to a regular file that exists; never makes one. All of the bytes are added or, where the
 *  disk is full or a limit of the process's is reached, none. Returns false when the file cannot be
 *  opened for writing although it is there. */
bool appendToFile(const NativePath& path, const QByteArray& bytes);

} // namespace q7
