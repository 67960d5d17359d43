// The data folder as it is told.
#pragma once

#include "answer.h"
#include "data_folder_facts.h"

namespace q7tool
{

constexpr char logFileName[] = "log_q7.txt";

void tellDataFolder(const DataFolderFacts& facts, Answer& answer);

} // namespace q7tool
