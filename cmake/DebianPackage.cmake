# What the .deb has besides what `cmake --install` puts in place, and what it says of itself.
# scripts/package-linux builds with it.
set(documentation ${CMAKE_INSTALL_DATAROOTDIR}/doc/q7-impressora)
install(DIRECTORY ${PROJECT_SOURCE_DIR}/build/manual/html/ DESTINATION ${documentation}/manual)
install(FILES packaging/linux/copyright CHANGELOG.md DESTINATION ${documentation})
# Of what is compiled into library and q7; the machine that uses them lacks these packages.
foreach(package IN ITEMS libasio-dev libsimpleini-dev libcli11-dev nlohmann-json3-dev
        libcpp-httplib-dev fonts-dejavu-core)
    install(FILES /usr/share/doc/${package}/copyright DESTINATION ${documentation}/licences
        RENAME ${package})
endforeach()
install(DIRECTORY declaracoes examples/ DESTINATION ${documentation}/examples
    PATTERN CMakeLists.txt EXCLUDE PATTERN print_document.c EXCLUDE PATTERN cpp EXCLUDE)
install(FILES packaging/linux/70-q7-impressora.rules DESTINATION lib/udev/rules.d)
install(PROGRAMS packaging/linux/is-named DESTINATION lib/q7-impressora)
install(FILES packaging/linux/q7_usb.ini DESTINATION /etc/q7-impressora)

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME q7-impressora)
set(CPACK_PACKAGE_CONTACT "Q7_Impressora <q7-impressora@q7.invalid>")
set(CPACK_PACKAGING_INSTALL_PREFIX ${CMAKE_INSTALL_PREFIX})
set(CPACK_STRIP_FILES ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION libs)
set(CPACK_DEBIAN_PACKAGE_DESCRIPTION "Drives thermal receipt printers over USB, serial lines and TCP, and prints SAT
CF-e extracts and NFC-e notes from their XML. With the library come its header,
q7 (the tool that tests printers and shows what would be printed), declarations
and examples in several languages, and the manual, in Portuguese.")
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS ON)
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
set(CPACK_DEBIAN_PACKAGE_CONTROL_EXTRA
    ${PROJECT_SOURCE_DIR}/packaging/linux/conffiles
    ${PROJECT_SOURCE_DIR}/packaging/linux/postinst
    ${PROJECT_SOURCE_DIR}/packaging/linux/postrm
    ${PROJECT_SOURCE_DIR}/packaging/linux/triggers)
include(CPack)
