// Where the library keeps its files: the data folder named by the installer.
#pragma once

#include <QString>

namespace q7
{

/** The data folder as text: what the installer registered when that is not empty and exists, used
 *  as it stands, else the working folder followed by "/". Looked up afresh at every call. */
QString dataFolder();

/** The path of a file in the data folder, with a separator added where the folder's text lacks it.
 *  The configuration file's path is formed without one (config_file.h). */
QString pathInDataFolder(const QString& fileName);

} // namespace q7
