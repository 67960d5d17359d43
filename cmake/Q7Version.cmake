# The version, from its home, the public header: Q7_VERSION ("1.1.0") and Q7_VERSION_TEXT ("01.01.00").
set(header ${CMAKE_CURRENT_LIST_DIR}/../include/q7_impressora.h)
set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${header})
file(READ ${header} text)

set(Q7_VERSION "")
set(expected_text "")
foreach(part IN ITEMS MAJOR MINOR PATCH)
    if(NOT text MATCHES "#define Q7_VERSION_${part} ([0-9]+)\n")
        message(FATAL_ERROR "${header} does not define Q7_VERSION_${part}")
    endif()
    set(number ${CMAKE_MATCH_1})
    list(APPEND Q7_VERSION ${number})
    if(number LESS 10)
        string(PREPEND number "0")
    endif()
    list(APPEND expected_text ${number})
endforeach()
list(JOIN Q7_VERSION "." Q7_VERSION)
list(JOIN expected_text "." expected_text)

# The preprocessor cannot make this text from the numbers.
if(NOT text MATCHES "#define Q7_VERSION_TEXT \"([0-9.]+)\"\n" OR
        NOT CMAKE_MATCH_1 STREQUAL expected_text)
    message(FATAL_ERROR "Q7_VERSION_TEXT in ${header} is not \"${expected_text}\"")
endif()
set(Q7_VERSION_TEXT ${CMAKE_MATCH_1})
