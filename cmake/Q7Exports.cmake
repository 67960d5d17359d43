# What a shared library exports: the functions named in a list, one a line, and nothing else.

# q7_export_only(TARGET LIST COMPONENTS the static libraries that define the functions)
function(q7_export_only target list_file)
    cmake_parse_arguments(ARG "" "" "COMPONENTS" ${ARGN})
    set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${list_file})
    file(STRINGS ${list_file} names REGEX "^[A-Za-z]")
    if(MINGW)
        q7_export_decorated(${target} ${list_file} "${ARG_COMPONENTS}")
    elseif(WIN32)
        list(JOIN names "\n" exports)
        set(definition ${CMAKE_CURRENT_BINARY_DIR}/${target}.def)
        file(CONFIGURE OUTPUT ${definition} CONTENT "LIBRARY ${target}\nEXPORTS\n@exports@\n" @ONLY)
        target_sources(${target} PRIVATE ${definition})
    else()
        list(JOIN names ";\n        " globals)
        set(map ${CMAKE_CURRENT_BINARY_DIR}/${target}.map)
        file(CONFIGURE OUTPUT ${map} CONTENT
            "{\n    global:\n        @globals@;\n    local:\n        *;\n};\n" @ONLY)
        target_link_options(${target} PRIVATE "LINKER:--version-script=${map}")
        set_property(TARGET ${target} APPEND PROPERTY LINK_DEPENDS ${map})
    endif()
endfunction()

# MinGW's linker wants the names as the compiler decorates them, with the size of the arguments
# behind an "@", and drops the decoration as it exports them. The compiled components know the
# sizes. Its own import library lacks the decoration that a caller's compiler asks for, so another
# is made: import/lib<target>.a.
function(q7_export_decorated target list_file components)
    set(definition ${CMAKE_CURRENT_BINARY_DIR}/${target}.def)
    set(script ${PROJECT_SOURCE_DIR}/cmake/DecoratedExports.cmake)
    set(archives)
    foreach(component IN LISTS components)
        list(APPEND archives $<TARGET_FILE:${component}>)
    endforeach()
    add_custom_command(
        OUTPUT ${definition}
        COMMAND ${CMAKE_COMMAND} -D NM=${CMAKE_NM} -D LIBRARY=${target} -D EXPORTS=${list_file}
            "-D ARCHIVES=$<JOIN:${archives},|>" -D OUTPUT=${definition}
            -D STDCALL=$<EQUAL:${CMAKE_SIZEOF_VOID_P},4> -P ${script}
        DEPENDS ${list_file} ${script} ${components} ${archives}
        COMMENT "Listing the exports of ${target}"
        VERBATIM)
    target_sources(${target} PRIVATE ${definition})
    target_link_options(${target} PRIVATE -Wl,--kill-at)

    # The path by which it is called makes names in it: in its own folder they are the same anywhere.
    set(import_folder ${CMAKE_CURRENT_BINARY_DIR}/import)
    set(import_library ${import_folder}/lib${target}.a)
    file(MAKE_DIRECTORY ${import_folder})
    add_custom_command(
        OUTPUT ${import_library}
        COMMAND ${CMAKE_DLLTOOL} --kill-at --dllname ${target}.dll
            --input-def ${definition} --output-lib lib${target}.a
        DEPENDS ${definition}
        WORKING_DIRECTORY ${import_folder}
        VERBATIM)
    add_custom_target(${target}_import_library ALL DEPENDS ${import_library})
    set_target_properties(${target} PROPERTIES Q7_IMPORT_LIBRARY ${import_library})
endfunction()
