# Script: writes the contents of FILES (separated by "|") as C++ strings into OUTPUT, the table
# pageFiles of page_files.h.
string(REPLACE "|" ";" FILES "${FILES}")
set(rows "")
set(texts "")
foreach(file IN LISTS FILES)
    get_filename_component(name ${file} NAME)
    string(MAKE_C_IDENTIFIER ${name} identifier)
    file(READ ${file} hex HEX)
    string(REGEX REPLACE "([0-9a-f][0-9a-f])" "0x\\1," bytes "${hex}")
    string(APPEND texts "const unsigned char ${identifier}[] = {${bytes}};\n")
    string(APPEND rows
        "    {\"${name}\", {reinterpret_cast<const char*>(${identifier}), sizeof ${identifier}}},\n")
endforeach()
file(WRITE ${OUTPUT} "// Made by embed.cmake.
#include \"page_files.h\"

namespace printer_page
{
namespace
{
${texts}
} // namespace

const std::map<std::string, std::string_view> pageFiles = {
${rows}};

} // namespace printer_page
")
