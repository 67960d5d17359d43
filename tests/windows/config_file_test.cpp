// The settings file on Windows: no export writes it, so its component is tested by itself.
#include "config_file.h"
#include "data_folder.h"

#include <cstdio>

namespace
{

bool failed = false;

void check(const char* name, bool passed)
{
    std::printf("%s %s\n", passed ? "ok" : "FAILED", name);
    failed = failed || !passed;
}

} // namespace

// Its argument is the data folder that the registry names.
int main(int argc, char** argv)
{
    if (argc != 2)
        return 2;
    check("data folder from the registry",
          QString::fromStdWString(q7::dataFolder()) == QString::fromUtf8(argv[1]));
    _wremove(q7::configFilePath().c_str());
    check("settings file made", q7::ensureConfigFile());
    check("default read back", q7::config::caminhoXsd(q7::IniFile(q7::configFilePath())) ==
                                   "C:/Program Files (x86)/Q7/");
    return failed ? 1 : 0;
}
