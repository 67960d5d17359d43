// What the campaigns print: one receipt of each kind.
#pragma once

#include <string>
#include <vector>

namespace q7test
{

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
