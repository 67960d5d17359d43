// q7: receipt printers from the command line, for integrators and technicians.

#include "command_line.h"
#include "console.h"

int main(int argc, char** argv)
{
    return static_cast<int>(q7tool::runCommandLine(q7tool::programArguments(argc, argv)));
}
