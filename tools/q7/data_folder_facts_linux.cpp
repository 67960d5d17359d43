#include "data_folder_facts.h"

#include <cstdlib>

namespace q7tool
{

std::vector<std::pair<std::string, std::string>> registeredFolders()
{
    const char* text = std::getenv("Q7_DATA_PATH"); // NOLINT(concurrency-mt-unsafe)
    return {{"Na variável de ambiente Q7_DATA_PATH", text == nullptr ? "" : text}};
}

} // namespace q7tool
