#include "model_names.h"

#include "model_rows.h"
#include "text.h"

namespace q7tool
{
namespace
{

constexpr ModelColumns usualColumns = {48, 64};

} // namespace

bool isModelName(std::string_view name)
{
    for (const q7::PrinterModel& model : q7::builtInModels)
        if (name == model.name)
            return true;
    return false;
}

std::string allModelNames()
{
    std::string names;
    for (const q7::PrinterModel& model : q7::builtInModels)
        names += (names.empty() ? "" : ", ") + std::string(model.name);
    return names;
}

std::string modelNamedIn(std::string_view reply)
{
    // The longest name counts: "RANZAPRO" holds "RANZA", too.
    const std::string text = upperCase(reply);
    std::string longest;
    for (const q7::PrinterModel& model : q7::builtInModels) {
        const std::string name = model.name;
        if (text.find(name) != std::string::npos && name.size() > longest.size())
            longest = name;
    }
    return longest;
}

ModelColumns columnsOf(std::string_view name)
{
    for (const q7::PrinterModel& model : q7::builtInModels)
        if (name == model.name && model.width1 > 0)
            return {model.width1, model.width2};
    return usualColumns;
}

} // namespace q7tool
