# q7_export_only(TARGET LIST): the shared library exports the functions named in LIST, one a line,
# and nothing else. The linker's list is made from it when the project is configured.
function(q7_export_only target list_file)
    set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${list_file})
    file(STRINGS ${list_file} names REGEX "^[A-Za-z]")
    list(JOIN names ";\n        " globals)
    set(map ${CMAKE_CURRENT_BINARY_DIR}/${target}.map)
    file(CONFIGURE OUTPUT ${map} CONTENT
        "{\n    global:\n        @globals@;\n    local:\n        *;\n};\n" @ONLY)
    target_link_options(${target} PRIVATE "LINKER:--version-script=${map}")
    set_property(TARGET ${target} APPEND PROPERTY LINK_DEPENDS ${map})
endfunction()
