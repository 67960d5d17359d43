// What this process holds of the system.
#pragma once

#include <chrono>
#include <filesystem>
#include <fstream>
#include <string>

namespace q7test
{

inline long entriesOf(const char* folder)
{
    using Entries = std::filesystem::directory_iterator;
    return std::distance(Entries(folder), Entries());
}

struct OwnResources {
    long descriptors = entriesOf("/proc/self/fd");
    long threads = entriesOf("/proc/self/task");

    bool operator==(const OwnResources& other) const
    {
        return descriptors == other.descriptors && threads == other.threads;
    }

    /** Whether the process comes to hold this again: a thread that was told to end takes its time. */
    bool comeBack() const
    {
        const auto end = std::chrono::steady_clock::now() + std::chrono::seconds(5);
        while (!(OwnResources() == *this))
            if (std::chrono::steady_clock::now() > end)
                return false;
        return true;
    }
};

inline long residentKib()
{
    long pages = 0;
    std::ifstream("/proc/self/statm") >> pages >> pages;
    return pages * 4;
}

} // namespace q7test
