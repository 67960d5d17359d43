#include "library_hold.h"

#include <dlfcn.h>

namespace q7
{

void holdLibrary() {}
void releaseLibrary() {}

void keepLibraryLoaded()
{
    Dl_info self = {};
    if (::dladdr(reinterpret_cast<const void*>(&keepLibraryLoaded), &self) != 0)
        ::dlopen(self.dli_fname, RTLD_LAZY | RTLD_NODELETE | RTLD_NOLOAD);
}

bool processIsEnding()
{
    return false; // the threads live on until the static destructors have run
}

} // namespace q7
