# Parts of the library that rest on Qt modules which not every kit has.

# q7_feature(NAME MODULE WHAT): the option Q7_WITH_<NAME> (AUTO takes what is found, ON demands it)
# and its outcome, Q7_HAS_<NAME>.
function(q7_feature name module what)
    set(option Q7_WITH_${name})
    set(${option} AUTO CACHE STRING "${what} (Qt ${module}): AUTO, ON or OFF")
    set_property(CACHE ${option} PROPERTY STRINGS AUTO ON OFF)
    set(found OFF)
    if(${option} STREQUAL "AUTO")
        find_package(Qt5${module} 5.15 QUIET)
        set(found ${Qt5${module}_FOUND})
    elseif(${option})
        find_package(Qt5${module} 5.15 REQUIRED)
        set(found ON)
    endif()
    if(found)
        set(outcome "${what}: yes")
    else()
        set(outcome "${what}: NO (Qt ${module} not used)")
        set(found OFF)
    endif()
    message(STATUS "Feature: ${outcome}")
    file(APPEND ${PROJECT_BINARY_DIR}/features.txt "${outcome}\n")
    set(Q7_HAS_${name} ${found} PARENT_SCOPE)
endfunction()

file(WRITE ${PROJECT_BINARY_DIR}/features.txt "") # for the scripts
q7_feature(SERIAL SerialPort "serial ports")
