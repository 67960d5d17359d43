#include "dynamic_library.h"

#include <dlfcn.h>
#include <link.h>

namespace q7tool::dynamic
{

const char* const system = "Linux";
const char* const fileName = "libQ7_Impressora.so";
const bool hasLibraryPath = true;

void* load(const std::string& path, std::string& error)
{
    void* library = ::dlopen(path.c_str(), RTLD_NOW | RTLD_LOCAL);
    if (library == nullptr)
        error = ::dlerror(); // NOLINT(concurrency-mt-unsafe)
    return library;
}

void* function(void* library, const char* name)
{
    return ::dlsym(library, name);
}

std::string pathOf(void* library, const std::string& asLoaded)
{
    struct link_map* map = nullptr;
    return ::dlinfo(library, RTLD_DI_LINKMAP, static_cast<void*>(&map)) == 0 ? map->l_name
                                                                             : asLoaded;
}

} // namespace q7tool::dynamic
