// The program's command line.
#pragma once

#include "server.h"

#include <map>
#include <vector>

namespace virtual_printer
{

struct Options {
    ServerSettings server;
    bool modelChosen = false;
    unsigned powerOnCodeTable = 0;
    std::string portFile;
    int jobs = 0;
    std::string input;    // file of printer bytes to draw instead of serving
    std::string inputLog; // library log to draw instead of serving
    std::string output = ".";
    std::string name = "job";
    bool pictures = true;
    std::map<std::string, std::string> graphicFiles; // by key
    bool help = false;
};

extern const char* const usage;

/** A mistake in the command line. */
struct UsageError {
    std::string message;
};

/** Throws UsageError. */
Options parseOptions(const std::vector<std::string>& arguments);

} // namespace virtual_printer
