// What the campaigns print, and where: one receipt of each kind, on a hostile printer.
#pragma once

#include "hostile_printer.h"

#include <string>
#include <vector>

namespace q7test
{

/** Opens a connection to that printer, which answers as that model; the export's result. */
int openOn(HostilePrinter& printer, const char* model = "VANTA");

struct SampleReceipt {
    enum class Kind { Sale, Cancellation, Note };
    const char* name;
    Kind kind;
    int options;
    std::string path; // of its document, from the project's folder
    std::string xml;
    std::string signature; // of a cancellation

    /** Prints it over the open link; the export's result. */
    int print() const { return print(xml); }
    /** The same of another document of its kind. */
    int print(const std::string& document) const;
};

/** A sale, its cancellation, an NFC-e and one issued offline. */
const std::vector<SampleReceipt>& sampleReceipts();

} // namespace q7test
