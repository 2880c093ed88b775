# The packages that cpack makes: a .deb, and a .tar.gz that runs from any folder. scripts/release makes and checks them.
# Who owns the project, and under which licence it is given away, is for its owner to fill in: here, and in copyright.
set(CPACK_PACKAGE_NAME vantrel)
set(CPACK_PACKAGE_CONTACT "The owner of Vantrel <owner@vantrel.invalid>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "user-interface inspector for Swing programs")
set(CPACK_PACKAGE_DESCRIPTION
"Which component is this, why does it look as it does, and which line of the
program put it there? A native agent for the Java VM brings an inspector into
a Swing program, which need not be changed for that. The command vantrel
starts it so, and Control+F12 shows the inspector.

Besides: vantrel-rewrite injects calls of a tracker class into class files
and jars, vantrel-generate writes C++ proxies of Java classes, and both can be
had as libraries for C and C++.")
set(CPACK_STRIP_FILES ON)
set(CPACK_GENERATOR DEB TGZ)
set(CPACK_PACKAGE_FILE_NAME vantrel-${PROJECT_VERSION}-linux-x86_64)

set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION java)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS "default-jre, libxcb1")
configure_file(${CMAKE_CURRENT_LIST_DIR}/debian/shlibs.in ${PROJECT_BINARY_DIR}/shlibs @ONLY)
set(CPACK_DEBIAN_PACKAGE_CONTROL_EXTRA ${PROJECT_BINARY_DIR}/shlibs ${CMAKE_CURRENT_LIST_DIR}/debian/triggers)
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)

# A package has to have a changelog in Debian's form, which wants a date: that of packing, or SOURCE_DATE_EPOCH's.
# CHANGELOG.md says what is new.
string(TIMESTAMP date "%a, %d %b %Y %H:%M:%S +0000" UTC)
configure_file(${CMAKE_CURRENT_LIST_DIR}/debian/changelog.in ${PROJECT_BINARY_DIR}/changelog @ONLY)
add_custom_command(OUTPUT ${PROJECT_BINARY_DIR}/changelog.gz
    COMMAND gzip -9nkf ${PROJECT_BINARY_DIR}/changelog
    DEPENDS ${PROJECT_BINARY_DIR}/changelog
    VERBATIM)
add_custom_target(debian-changelog ALL DEPENDS ${PROJECT_BINARY_DIR}/changelog.gz)

set(doc_folder ${CMAKE_INSTALL_DATADIR}/doc/vantrel)
install(FILES
    ${CMAKE_CURRENT_LIST_DIR}/debian/copyright
    ${PROJECT_BINARY_DIR}/changelog.gz
    ${PROJECT_SOURCE_DIR}/README.md
    ${PROJECT_SOURCE_DIR}/CONTRIBUTING.md
    ${PROJECT_SOURCE_DIR}/CHANGELOG.md
    DESTINATION ${doc_folder})
install(DIRECTORY ${PROJECT_SOURCE_DIR}/docs DESTINATION ${doc_folder})
install(FILES ${CMAKE_CURRENT_LIST_DIR}/debian/lintian-overrides
    DESTINATION ${CMAKE_INSTALL_DATADIR}/lintian/overrides RENAME vantrel)
include(CPack)
