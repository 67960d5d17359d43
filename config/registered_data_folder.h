// The platform's side of the data folder: what the installer registered.
#pragma once

#include <QString>

namespace q7
{

/** The text registered for this machine, empty when there is none. Windows: the value "data_path"
 *  of the key HKEY_LOCAL_MACHINE\SOFTWARE\Q7. Linux: the environment variable Q7_DATA_PATH. */
QString registeredDataFolder();

/** Whether a file of this name exists in the data folder. Asked before every line of the log, most
 *  often to learn that the log is off: the cheapest test that the platform has. */
bool existsInDataFolder(const char* fileName);

/** Appends to a file in the data folder that exists; never makes one. Returns false when it cannot
 *  be opened although it is there. */
bool appendInDataFolder(const char* fileName, const QByteArray& bytes);

} // namespace q7
