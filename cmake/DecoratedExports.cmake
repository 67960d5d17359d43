# Script: writes the linker's export list from the names in EXPORTS, decorated as the objects of
# ARCHIVES (separated by "|") define them: as stdcall functions where STDCALL is on, plainly
# elsewhere. A name that they do not define so ends the build.
string(REPLACE "|" ";" ARCHIVES "${ARCHIVES}")
execute_process(
    COMMAND ${NM} --defined-only --extern-only --format=posix ${ARCHIVES}
    OUTPUT_VARIABLE symbols
    COMMAND_ERROR_IS_FATAL ANY)
file(STRINGS ${EXPORTS} names REGEX "^[A-Za-z]")
set(text "LIBRARY ${LIBRARY}.dll\nEXPORTS\n")
foreach(name IN LISTS names)
    set(symbol "(${name})")
    if(STDCALL)
        set(symbol "_(${name}@[0-9]+)")
    endif()
    if(NOT symbols MATCHES "\n${symbol} T ")
        message(FATAL_ERROR "${name} is on the export list but not defined as it should be")
    endif()
    string(APPEND text "    ${CMAKE_MATCH_1}\n")
endforeach()
file(WRITE ${OUTPUT} "${text}")
