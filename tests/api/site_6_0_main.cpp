// The main program of tests at a site whose receipts follow the manual's version 6.0.
#include <cstdlib>
#include <gtest/gtest.h>
#include <string>
#include <unistd.h>

// The library reads a site's file when it loads, which is before main(): the program starts itself
// once more, in the data folder of such a site.
int main(int argc, char** argv)
{
    const char* const folder = getenv("Q7_DATA_PATH");
    if (folder == nullptr || std::string(folder) != Q7_SITE) {
        setenv("Q7_DATA_PATH", Q7_SITE, 1);
        execv("/proc/self/exe", argv);
        return 1;
    }
    testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
