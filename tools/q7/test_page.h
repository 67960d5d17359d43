// The page that shows on paper whether a printer is set up right.
#pragma once

#include "printer_library.h"

namespace q7tool
{

/** Prints it and cuts. Throws Failure. */
void printTestPage(const PrinterLibrary& library, const std::string& model);

} // namespace q7tool
