# What cmake --install puts into place for a VM that loads the agent, and for other projects: the library and the jar
# that it looks for beside itself, the rewriter as a library of its own, public headers, and how CMake and pkg-config
# find all that. The folders are those of GNUInstallDirs. Everything finds everything else from where it lies, so the
# whole may be moved. The component `runtime` is what users need: scripts/release builds that part once more for old
# Linux distributions.
include(CMakePackageConfigHelpers)

set(header_folder ${CMAKE_INSTALL_INCLUDEDIR}/vantrel)
set(package_folder ${CMAKE_INSTALL_LIBDIR}/cmake/vantrel-agent)
set(pkgconfig_folder ${CMAKE_INSTALL_LIBDIR}/pkgconfig)

install(TARGETS vantrel-agent java-crw-demo EXPORT vantrel-agent
    LIBRARY COMPONENT runtime NAMELINK_COMPONENT developers
    INCLUDES DESTINATION ${header_folder} ${header_folder}/jc)
install(FILES $<TARGET_PROPERTY:vantrel-companion,JAR_FILE> DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT runtime)
set(sources ${PROJECT_SOURCE_DIR}/agent/vantrel-agent)
install(FILES
    ${sources}/CodeGenerater/CodeGenerater.h
    ${sources}/agent_util.h
    ${sources}/java_crw_demo/java_crw_demo.h
    ${sources}/java_crw_demo/vantrel_rewriter.h
    DESTINATION ${header_folder})
# The headers that proxies include by names such as "../JCBase.h". A compiler also looks for these from each folder that
# it is told to search; with jc/ among those it finds them, wherever a project has its proxies.
install(FILES ${CMAKE_CURRENT_LIST_DIR}/include-jc.txt DESTINATION ${header_folder}/jc RENAME README)
install(FILES
    ${sources}/JCBase.h
    ${sources}/JavaInc.h
    ${sources}/assertion.h
    ${sources}/common.h
    DESTINATION ${header_folder})

install(EXPORT vantrel-agent
    NAMESPACE vantrel-agent::
    FILE vantrel-agent-config.cmake
    DESTINATION ${package_folder})
write_basic_package_version_file(${PROJECT_BINARY_DIR}/vantrel-agent-config-version.cmake
    COMPATIBILITY SameMajorVersion)
install(FILES ${PROJECT_BINARY_DIR}/vantrel-agent-config-version.cmake DESTINATION ${package_folder})

# The prefix, seen from a .pc file's folder.
file(RELATIVE_PATH prefix_from_pc ${CMAKE_INSTALL_PREFIX}/${pkgconfig_folder} ${CMAKE_INSTALL_PREFIX})
cmake_path(SET prefix_from_pc NORMALIZE ${prefix_from_pc}/.)
string(REGEX REPLACE "/$" "" prefix_from_pc ${prefix_from_pc})
foreach(module vantrel-agent vantrel-rewriter)
    configure_file(${CMAKE_CURRENT_LIST_DIR}/${module}.pc.in ${PROJECT_BINARY_DIR}/${module}.pc @ONLY)
    install(FILES ${PROJECT_BINARY_DIR}/${module}.pc DESTINATION ${pkgconfig_folder})
endforeach()
