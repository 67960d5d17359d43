// What the installer registered as the data folder: the platform's side of it.
#pragma once

#include "file_access.h"

namespace q7
{

/** The text registered for this machine, empty when there is none. Windows: the value "data_path"
 *  of the key HKEY_LOCAL_MACHINE\SOFTWARE\Q7. Linux: the environment variable Q7_DATA_PATH. */
NativePath registeredDataFolder();

} // namespace q7
