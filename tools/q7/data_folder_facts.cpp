#include "data_folder_facts.h"

#include "data_folder.h"
#include "file_path.h"
#include "registered_data_folder.h"

#include <chrono>
#include <fstream>

namespace q7tool
{
namespace
{

namespace fs = std::filesystem;

bool endsWithSeparator(const std::string& folder)
{
    return !folder.empty() && (folder.back() == '/' || folder.back() == '\\');
}

/** Found out by writing: permissions alone do not tell. */
bool canBeWrittenTo(const std::string& folder)
{
    const auto stamp = std::chrono::steady_clock::now().time_since_epoch().count();
    const fs::path probe = filePath(folder + "q7_teste_" + std::to_string(stamp) + ".tmp");
    std::error_code ignored;
    if (fs::exists(probe, ignored))
        return false;
    const bool written = static_cast<bool>(std::ofstream(probe) << "q7");
    fs::remove(probe, ignored);
    return written;
}

} // namespace

DataFolderFacts dataFolderFacts(const std::string& folder)
{
    DataFolderFacts facts;
    facts.registered = registeredFolders();
    facts.folder = folder.empty() ? utf8Path(fs::path(q7::dataFolder())) : folder;
    const q7::NativePath inForce = q7::registeredDataFolder();
    facts.isRegistered = folder.empty() && !inForce.empty() && inForce == q7::dataFolder();
    if (!endsWithSeparator(facts.folder))
        facts.folder += '/';
    facts.isWritable = canBeWrittenTo(facts.folder);
    return facts;
}

} // namespace q7tool
