// The printer models that the library knows.
#pragma once

#include <string>
#include <string_view>

namespace q7tool
{

/** name: in capitals. */
bool isModelName(std::string_view name);

/** All names, separated by ", ". */
std::string allModelNames();

/** The model whose name occurs in what a printer says of itself; empty when there is none. */
std::string modelNamedIn(std::string_view reply);

/** Characters on a line. Those of the usual 80 mm paper where the model has none of its own. */
struct ModelColumns {
    int normal;
    int small;
};
ModelColumns columnsOf(std::string_view model);

} // namespace q7tool
