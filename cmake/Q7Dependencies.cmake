# What the project uses of others besides Qt, each as one target named q7_<library>: Debian's
# packages natively, and their like in the prefix that scripts/build-windows makes for Windows.

find_package(Threads REQUIRED)

# q7_header_library(NAME HEADER [SUFFIX]): headers alone; SUFFIX is their folder among the system's.
function(q7_header_library name header)
    find_path(${name}_include ${header} PATH_SUFFIXES ${ARGN} REQUIRED)
    mark_as_advanced(${name}_include)
    add_library(${name} INTERFACE IMPORTED GLOBAL)
    target_include_directories(${name} INTERFACE ${${name}_include})
endfunction()

# q7_linked_library(NAME HEADER LIBRARY [SUFFIX])
function(q7_linked_library name header library)
    q7_header_library(${name} ${header} ${ARGN})
    find_library(${name}_library ${library} REQUIRED)
    mark_as_advanced(${name}_library)
    target_link_libraries(${name} INTERFACE ${${name}_library})
endfunction()

q7_header_library(q7_asio asio.hpp)
target_compile_definitions(q7_asio INTERFACE ASIO_STANDALONE ASIO_NO_DEPRECATED)
target_link_libraries(q7_asio INTERFACE Threads::Threads $<$<BOOL:${WIN32}>:ws2_32 mswsock>)

q7_header_library(q7_simpleini SimpleIni.h)
# Its bodies in the header too, and texts as they stand in the file.
target_compile_definitions(q7_simpleini INTERFACE SI_IMPLEMENTATION SI_NO_CONVERSION)

q7_linked_library(q7_libxml2 libxml/xmlschemas.h xml2 libxml2)
if(WIN32)
    target_compile_definitions(q7_libxml2 INTERFACE LIBXML_STATIC)
endif()

# Of the tools alone.
if(Q7_BUILD_TOOLS)
    q7_linked_library(q7_zint zint.h zint)
    q7_linked_library(q7_lodepng lodepng.h lodepng)
    q7_header_library(q7_cli11 CLI/CLI.hpp)
    q7_header_library(q7_json nlohmann/json.hpp)
    if(WIN32)
        q7_header_library(q7_httplib httplib.h)
        target_link_libraries(q7_httplib INTERFACE Threads::Threads ws2_32 crypt32)
    else()
        # Debian's is compiled, with everything that it can do.
        q7_linked_library(q7_httplib httplib.h cpp-httplib)
        target_compile_definitions(q7_httplib INTERFACE
            CPPHTTPLIB_OPENSSL_SUPPORT CPPHTTPLIB_ZLIB_SUPPORT CPPHTTPLIB_BROTLI_SUPPORT)
        target_link_libraries(q7_httplib INTERFACE Threads::Threads)
    endif()
endif()
