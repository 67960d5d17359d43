// Where the library keeps its files on this machine, and how that came about.
#pragma once

#include <string>
#include <utility>
#include <vector>

namespace q7tool
{

struct DataFolderFacts {
    std::string folder;        // in force, with a separator at its end
    bool isRegistered = false; // else it is the working folder
    bool isWritable = false;
    /** What is registered, by the words for the place ("No registro"); empty texts are none. */
    std::vector<std::pair<std::string, std::string>> registered;
};

/** folder: to be looked at instead of the one in force; empty for that. */
DataFolderFacts dataFolderFacts(const std::string& folder);

/** What the system holds under each of the names and views, the one that counts first: more than the
 *  library looks at, since an installer may have written to the wrong one. */
std::vector<std::pair<std::string, std::string>> registeredFolders();

} // namespace q7tool
