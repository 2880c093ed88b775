# What cmake --install puts into place for people: the commands, and a manual page of each command's manual where there
# is lowdown (Debian: lowdown) to make one.
set(commands vantrel vantrel-generate)
if(NOT VANTREL_SYSTEM_ONLY)
    list(APPEND commands vantrel-rewrite)
endif()
install(TARGETS ${commands} RUNTIME COMPONENT runtime)

find_program(LOWDOWN lowdown)
if(NOT LOWDOWN)
    message(STATUS "No manual pages: there is no lowdown")
    return()
endif()
set(maker ${CMAKE_CURRENT_LIST_DIR}/manual-page.cmake)
foreach(command IN LISTS commands)
    set(manual ${PROJECT_SOURCE_DIR}/docs/${command}.md)
    set(page ${PROJECT_BINARY_DIR}/man/${command}.1)
    add_custom_command(OUTPUT ${page}.gz
        COMMAND ${CMAKE_COMMAND} -D MANUAL=${manual} -D PAGE=${page} -D VERSION=${PROJECT_VERSION}
            -D LOWDOWN=${LOWDOWN} -P ${maker}
        COMMAND gzip -9nf ${page}
        DEPENDS ${manual} ${maker}
        VERBATIM)
    list(APPEND pages ${page}.gz)
endforeach()
add_custom_target(manual-pages ALL DEPENDS ${pages})
install(FILES ${pages} DESTINATION ${CMAKE_INSTALL_MANDIR}/man1)
