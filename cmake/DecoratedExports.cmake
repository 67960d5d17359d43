# Script: writes the linker's export list from the names in EXPORTS, decorated as the objects of
# ARCHIVES (separated by "|") define them. A name that they do not define ends the build.
string(REPLACE "|" ";" ARCHIVES "${ARCHIVES}")
execute_process(
    COMMAND ${NM} --defined-only --extern-only --format=posix ${ARCHIVES}
    OUTPUT_VARIABLE symbols
    COMMAND_ERROR_IS_FATAL ANY)
file(STRINGS ${EXPORTS} names REGEX "^[A-Za-z]")
set(text "LIBRARY ${LIBRARY}.dll\nEXPORTS\n")
foreach(name IN LISTS names)
    if(NOT symbols MATCHES "\n_(${name}@[0-9]+) T ")
        message(FATAL_ERROR "${name} is on the export list but not defined as a stdcall function")
    endif()
    string(APPEND text "    ${CMAKE_MATCH_1}\n")
endforeach()
file(WRITE ${OUTPUT} "${text}")
