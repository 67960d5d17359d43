# Compile settings that every target of the project shares, and the shape of one library component.

add_library(q7_compile_options INTERFACE)
target_compile_features(q7_compile_options INTERFACE cxx_std_17)
target_compile_definitions(q7_compile_options INTERFACE QT_NO_KEYWORDS QT_NO_FOREACH)
if(WIN32)
    # Windows 7, which many tills run: what came later is not declared.
    target_compile_definitions(q7_compile_options INTERFACE _WIN32_WINNT=0x0601 WINVER=0x0601)
endif()
if(CMAKE_CXX_COMPILER_ID MATCHES "GNU|Clang")
    target_compile_options(q7_compile_options INTERFACE
        -Wall -Wextra -Wpedantic -Wconversion -Wshadow
        $<$<COMPILE_LANGUAGE:CXX>:-Wnon-virtual-dtor>
        $<$<BOOL:${Q7_WARNINGS_AS_ERRORS}>:-Werror>)
elseif(MSVC)
    target_compile_definitions(q7_compile_options INTERFACE
        NOMINMAX _CRT_NONSTDC_NO_DEPRECATE _CRT_SECURE_NO_WARNINGS)
    target_compile_options(q7_compile_options INTERFACE
        /W4 /utf-8 /permissive- $<$<BOOL:${Q7_WARNINGS_AS_ERRORS}>:/WX>)
endif()
if(Q7_SANITIZE)
    target_compile_options(q7_compile_options INTERFACE
        -fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
    target_link_options(q7_compile_options INTERFACE -fsanitize=address,undefined)
endif()

if(Q7_SANITIZE_THREADS)
    # Fences, which it does not know, stand beside locks that it knows.
    target_compile_options(q7_compile_options INTERFACE
        -fsanitize=thread -fno-omit-frame-pointer $<$<CXX_COMPILER_ID:GNU>:-Wno-tsan>)
    target_link_options(q7_compile_options INTERFACE -fsanitize=thread)
endif()
if(Q7_FUZZ)
    target_compile_options(q7_compile_options INTERFACE -fsanitize=fuzzer-no-link)
endif()

# q7_component(NAME SOURCES ... LINKS ...): one folder of the library as a static library. Its
# headers are reached only through its own folder, so a target sees exactly what it links.
function(q7_component name)
    cmake_parse_arguments(ARG "" "" "SOURCES;LINKS;PRIVATE_LINKS" ${ARGN})
    add_library(${name} STATIC ${ARG_SOURCES})
    target_include_directories(${name} PUBLIC ${CMAKE_CURRENT_SOURCE_DIR})
    target_link_libraries(${name} PUBLIC ${ARG_LINKS} PRIVATE q7_compile_options ${ARG_PRIVATE_LINKS})
    set_target_properties(${name} PROPERTIES
        POSITION_INDEPENDENT_CODE ON CXX_VISIBILITY_PRESET hidden VISIBILITY_INLINES_HIDDEN ON)
endfunction()

# Picks the file that implements a platform interface: name_win.cpp or name_linux.cpp.
if(WIN32)
    set(Q7_PLATFORM win)
else()
    set(Q7_PLATFORM linux)
endif()
