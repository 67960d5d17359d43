// The settings file and the log on Windows: what no export shows of their component.
#include "config_file.h"
#include "data_folder.h"
#include "log.h"

#include <windows.h>

#include <cstdio>
#include <cstring>

namespace
{

bool failed = false;

void check(const char* name, bool passed)
{
    std::printf("%s %s\n", passed ? "ok" : "FAILED", name);
    failed = failed || !passed;
}

// A log of 5 GB, most of it a hole, gets one more line at its end.
void checkLargeLog()
{
    const std::wstring path = q7::pathInDataFolder("log_q7.txt");
    const HANDLE file = ::CreateFileW(path.c_str(), GENERIC_READ | GENERIC_WRITE,
                                      FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr, CREATE_ALWAYS,
                                      FILE_ATTRIBUTE_NORMAL, nullptr);
    LARGE_INTEGER end = {};
    end.QuadPart = 5LL << 30;
    const bool isMade = ::SetFilePointerEx(file, end, nullptr, FILE_BEGIN) && ::SetEndOfFile(file);
    q7::writeLog(2, "a\xC3\xA7\xC3\xA3o");
    char line[100] = {};
    DWORD length = 0;
    const bool isRead = ::ReadFile(file, line, sizeof line - 1, &length, nullptr) != FALSE;
    check("line behind 4 GB", isMade && isRead && line[0] == '[' &&
                                  std::strcmp(line + 25, ".....[FUNCAO]...............["
                                                         "a\xC3\xA7\xC3\xA3o]\n") == 0);
    end.QuadPart = 0; // left empty, as it was
    ::SetFilePointerEx(file, end, nullptr, FILE_BEGIN);
    ::SetEndOfFile(file);
    ::CloseHandle(file);
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
    checkLargeLog();
    return failed ? 1 : 0;
}
