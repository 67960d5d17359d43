// Where the library keeps its files: the data folder named by the installer.
#pragma once

#include "file_access.h"

namespace q7
{

/** The data folder as text: what the installer registered when that is not empty and exists, used
 *  as it stands, else the working folder followed by "/". Looked up afresh at every call. */
NativePath dataFolder();

/** The path of a file in the data folder, with a separator added where the folder's text lacks it;
 *  in the working folder the bare name. fileName: ASCII.
 *  The configuration file's path is formed without a separator (config_file.h). */
NativePath pathInDataFolder(const char* fileName);

} // namespace q7
