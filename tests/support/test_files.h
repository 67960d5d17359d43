// The files that tests read.
#pragma once

#include <string>

namespace q7test
{

/** Throws when it cannot be read, which fails the test. */
std::string fileContent(const std::string& path);

/** A document of examples/documents, by its name without ".xml". */
std::string exampleDocument(const std::string& name);

/** The path of a file or folder of the sample data (the option Q7_SAMPLE_DATA); empty when it is not
 *  there: tests that need it are skipped then. */
std::string sampleData(const std::string& name);

} // namespace q7test
