// The manual's reference part: a page for each function and each result code, one for the constants,
// in reStructuredText for Sphinx.
#pragma once

#include "interface.h"

#include <map>
#include <string>

namespace q7decl
{

/** The pages' texts by their paths below the manual's folder. Names of functions and constants are
 *  cross references by Sphinx's role "any", which the manual must have as its default. */
std::map<std::string, std::string> manualPages(const Interface& interface);

} // namespace q7decl
