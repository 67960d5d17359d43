#include "registered_data_folder.h"

#include <cstdlib>

namespace q7
{

NativePath registeredDataFolder()
{
    const char* text = std::getenv("Q7_DATA_PATH"); // NOLINT(concurrency-mt-unsafe)
    return text == nullptr ? "" : text;
}

} // namespace q7
