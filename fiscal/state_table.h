// The states' two-letter abbreviations.
#pragma once

#include <QString>

namespace q7
{

/** The abbreviation (UF) of a state by its IBGE number, 11 to 53; empty for any other number. */
QString stateAbbreviation(int ibgeNumber);

} // namespace q7
