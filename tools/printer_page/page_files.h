// The files of the page (page/), inside the program.
#pragma once

#include <map>
#include <string>
#include <string_view>

namespace printer_page
{

/** Contents by file name. */
extern const std::map<std::string, std::string_view> pageFiles;

} // namespace printer_page
