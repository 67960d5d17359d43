# What `cmake --install` puts in place: the library, its header, a CMake package and a pkg-config file.
include(CMakePackageConfigHelpers)

set(package_folder ${CMAKE_INSTALL_LIBDIR}/cmake/Q7Impressora)
set_target_properties(Q7_Impressora PROPERTIES
    VERSION ${PROJECT_VERSION} SOVERSION ${PROJECT_VERSION_MAJOR}
    EXPORT_NAME Q7Impressora PUBLIC_HEADER ${CMAKE_CURRENT_SOURCE_DIR}/include/q7_impressora.h)
target_include_directories(Q7_Impressora INTERFACE
    $<INSTALL_INTERFACE:${CMAKE_INSTALL_INCLUDEDIR}>)
install(TARGETS Q7_Impressora EXPORT Q7ImpressoraTargets
    PUBLIC_HEADER DESTINATION ${CMAKE_INSTALL_INCLUDEDIR})
install(EXPORT Q7ImpressoraTargets NAMESPACE Q7Impressora:: DESTINATION ${package_folder})

configure_package_config_file(cmake/Q7ImpressoraConfig.cmake.in
    ${CMAKE_CURRENT_BINARY_DIR}/Q7ImpressoraConfig.cmake INSTALL_DESTINATION ${package_folder})
write_basic_package_version_file(${CMAKE_CURRENT_BINARY_DIR}/Q7ImpressoraConfigVersion.cmake
    COMPATIBILITY SameMajorVersion)
configure_file(cmake/q7-impressora.pc.in ${CMAKE_CURRENT_BINARY_DIR}/q7-impressora.pc @ONLY)
install(FILES
    ${CMAKE_CURRENT_BINARY_DIR}/Q7ImpressoraConfig.cmake
    ${CMAKE_CURRENT_BINARY_DIR}/Q7ImpressoraConfigVersion.cmake
    DESTINATION ${package_folder})
install(FILES ${CMAKE_CURRENT_BINARY_DIR}/q7-impressora.pc
    DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig)
