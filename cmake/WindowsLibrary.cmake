# What the library is on Windows besides its exports: one file that needs nothing but the system,
# with a version that the system shows.
enable_language(RC)
configure_file(cmake/version.rc.in version.rc @ONLY)
target_sources(Q7_Impressora PRIVATE ${CMAKE_CURRENT_BINARY_DIR}/version.rc)
set_target_properties(Q7_Impressora PROPERTIES PREFIX "")
if(MINGW)
    # The compiler's runtime and threads inside; applications bring none of their own.
    target_link_options(Q7_Impressora PRIVATE
        -static -Wl,--gc-sections -Wl,--no-insert-timestamp $<$<CONFIG:Release>:-s>)
endif()
